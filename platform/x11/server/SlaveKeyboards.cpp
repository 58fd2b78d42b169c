// SPDX-License-Identifier: MIT
#include "platform/x11/server/SlaveKeyboards.h"

#include <xcb/xinput.h>
#include <xcb/xtest.h>

#include <string_view>

#include "platform/x11/server/XReply.h"

namespace x11 {

namespace {

/// The driver's own mark; the devices' names are not fixed.
constexpr std::string_view xtestProperty = "XTEST Device";

std::bitset<256> bitsOf(const xcb_input_key_state_t& state) {
    std::bitset<256> down;
    for (std::size_t keycode = 0; keycode < down.size(); ++keycode) {
        down[keycode] = (state.keys[keycode / 8] >> (keycode % 8) & 1) != 0;
    }
    return down;
}

}  // namespace

xcb_atom_t xtestMark(xcb_connection_t* connection) {
    const auto reply =
        replyTo(connection,
                xcb_intern_atom(connection, 1, static_cast<std::uint16_t>(xtestProperty.size()),
                                xtestProperty.data()),
                xcb_intern_atom_reply);
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

bool isXtest(xcb_connection_t* connection, std::uint16_t device, xcb_atom_t mark) {
    if (mark == XCB_ATOM_NONE) return false;
    const auto reply =
        replyTo(connection, xcb_input_xi_get_property(connection, device, 0, mark, XCB_ATOM_ANY, 0, 1),
                xcb_input_xi_get_property_reply);
    return reply && reply->type != XCB_ATOM_NONE;
}

std::vector<SlaveKeyboard> slaveKeyboards(xcb_connection_t* connection) {
    std::vector<SlaveKeyboard> keyboards;
    const xcb_atom_t mark = xtestMark(connection);
    const auto reply = replyTo(connection, xcb_input_xi_query_device(connection, XCB_INPUT_DEVICE_ALL),
                               xcb_input_xi_query_device_reply);
    if (!reply) return keyboards;
    for (auto info = xcb_input_xi_query_device_infos_iterator(reply.get()); info.rem > 0;
         xcb_input_xi_device_info_next(&info)) {
        if (info.data->type != XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD) continue;
        keyboards.push_back({.device = info.data->deviceid,
                             .master = info.data->attachment,
                             .isXtest = isXtest(connection, info.data->deviceid, mark)});
    }
    return keyboards;
}

std::bitset<256> keysDownOn(xcb_connection_t* connection, const SlaveKeyboard& keyboard) {
    const auto reply = replyTo(
        connection, xcb_input_query_device_state(connection, static_cast<std::uint8_t>(keyboard.device)),
        xcb_input_query_device_state_reply);
    if (!reply) return {};
    for (auto state = xcb_input_query_device_state_classes_iterator(reply.get()); state.rem > 0;
         xcb_input_input_state_next(&state)) {
        if (state.data->class_id == XCB_INPUT_INPUT_CLASS_KEY) {
            return bitsOf(*reinterpret_cast<const xcb_input_key_state_t*>(state.data));
        }
    }
    return {};
}

int releaseXtestKeys(xcb_connection_t* connection) {
    int released = 0;
    for (const SlaveKeyboard& keyboard : slaveKeyboards(connection)) {
        if (!keyboard.isXtest) continue;
        const auto down = keysDownOn(connection, keyboard);
        for (std::size_t keycode = 0; keycode < down.size(); ++keycode) {
            if (!down[keycode]) continue;
            xcb_test_fake_input(connection, XCB_KEY_RELEASE, static_cast<std::uint8_t>(keycode),
                                XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
            ++released;
        }
    }
    const auto done = replyTo(connection, xcb_get_input_focus(connection), xcb_get_input_focus_reply);
    return released;
}

}  // namespace x11

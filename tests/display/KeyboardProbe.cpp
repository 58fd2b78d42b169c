// SPDX-License-Identifier: MIT
#include "display/KeyboardProbe.h"

#include <xcb/xinput.h>

#include <set>
#include <sstream>
#include <stdexcept>

#include "display/Connection.h"
#include "platform/x11/server/Extensions.h"
#include "support/Child.h"

// The C header names a structure member "explicit".
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit

namespace {

void collect(const std::uint8_t* bits, std::set<int>& keys) {
    for (int keycode = 8; keycode < 256; ++keycode) {
        if ((bits[keycode / 8] >> (keycode % 8) & 1) != 0) keys.insert(keycode);
    }
}

void collectOfDevice(xcb_connection_t* connection, std::uint8_t device, std::set<int>& keys) {
    const x11::XReply<xcb_input_query_device_state_reply_t> reply(xcb_input_query_device_state_reply(
        connection, xcb_input_query_device_state(connection, device), nullptr));
    if (!reply) return;
    auto input = xcb_input_query_device_state_classes_iterator(reply.get());
    for (; input.rem > 0; xcb_input_input_state_next(&input)) {
        if (input.data->class_id != XCB_INPUT_INPUT_CLASS_KEY) continue;
        collect(reinterpret_cast<const xcb_input_key_state_t*>(input.data)->keys, keys);
    }
}

std::set<int> keysDown(xcb_connection_t* connection) {
    std::set<int> keys;
    const x11::XReply<xcb_query_keymap_reply_t> core(
        xcb_query_keymap_reply(connection, xcb_query_keymap(connection), nullptr));
    collect(core->keys, keys);
    const x11::XReply<xcb_input_xi_query_device_reply_t> devices(xcb_input_xi_query_device_reply(
        connection, xcb_input_xi_query_device(connection, XCB_INPUT_DEVICE_ALL), nullptr));
    auto info = xcb_input_xi_query_device_infos_iterator(devices.get());
    for (; info.rem > 0; xcb_input_xi_device_info_next(&info)) {
        if (info.data->type != XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD) continue;
        collectOfDevice(connection, static_cast<std::uint8_t>(info.data->deviceid), keys);
    }
    return keys;
}

x11::XReply<xcb_xkb_get_state_reply_t> stateOf(xcb_connection_t* connection) {
    return x11::XReply<xcb_xkb_get_state_reply_t>(
        xcb_xkb_get_state_reply(connection, xcb_xkb_get_state(connection, XCB_XKB_ID_USE_CORE_KBD), nullptr));
}

}  // namespace

KeyboardProbe::KeyboardProbe(const std::string& display) : m_connection(connectTo(display)) {
    const auto usable = x11::Extensions(m_connection).use({x11::Extension::keyboard, x11::Extension::input});
    if (!usable) throw std::runtime_error(usable.error().message);
}

std::string KeyboardProbe::held() const {
    m_connection.roundTrip();
    std::ostringstream words;
    words << "keys:";
    for (const int keycode : keysDown(m_connection)) words << ' ' << keycode;
    const auto state = stateOf(m_connection);
    words << ", modifiers: 0x" << std::hex << int{state->baseMods};
    return words.str();
}

std::string KeyboardProbe::awaitHeld(const std::string& expected) const {
    eventually([&] { return held() == expected; });
    return held();
}

std::string KeyboardProbe::words() const {
    std::ostringstream words;
    words << held() << ", locked: 0x" << std::hex << int{locked()} << ", group: " << int{group()};
    return words.str();
}

std::uint8_t KeyboardProbe::locked() const { return stateOf(m_connection)->lockedMods; }

std::uint8_t KeyboardProbe::group() const {
    return static_cast<std::uint8_t>(stateOf(m_connection)->lockedGroup);
}

bool KeyboardProbe::hasProperty(const std::string& name) const {
    const x11::XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        m_connection,
        xcb_get_property(m_connection, 0, m_connection.root(), m_connection.atom(name), XCB_ATOM_ANY, 0, 1),
        nullptr));
    return reply && reply->type != XCB_ATOM_NONE;
}

// SPDX-License-Identifier: MIT
#include "display/CoreClient.h"

#include <algorithm>
#include <stdexcept>

#include "display/Connection.h"
#include "support/Child.h"

CoreClient::CoreClient(const std::string& display) : m_connection(connectTo(display)) {
    m_window = xcb_generate_id(m_connection);
    const std::uint32_t events = XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE;
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, m_connection.root(), 0, 0, 100, 100, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    xcb_map_window(m_connection, m_window);
    const bool focused = eventually([this] {
        xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_PARENT, m_window, XCB_CURRENT_TIME);
        const x11::XReply<xcb_get_input_focus_reply_t> reply(
            xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
        return reply && reply->focus == m_window;
    });
    if (!focused) throw std::runtime_error("the window got no focus");
}

const std::vector<CoreClient::KeyEvent>& CoreClient::events() {
    m_connection.roundTrip();
    while (const x11::Event event = m_connection.nextEvent()) {
        if (event.is(x11::mappingNotify)) ++m_mappingChanges;
        // Both are laid out alike.
        if (!event.is(x11::keyPress) && !event.is(x11::keyRelease)) continue;
        const auto& key = event.body<xcb_key_press_event_t>();
        m_events.push_back({event.is(x11::keyPress), key.detail, key.state, key.time});
    }
    return m_events;
}

int CoreClient::repeats(std::uint8_t keycode) {
    const auto& all = events();
    int count = 0;
    for (std::size_t i = 1; i < all.size(); ++i) {
        const bool pair = all[i].press && !all[i - 1].press && all[i].keycode == keycode &&
                          all[i - 1].keycode == keycode && all[i].time == all[i - 1].time;
        count += pair ? 1 : 0;
    }
    return count;
}

int CoreClient::presses(std::uint8_t keycode) {
    const auto& all = events();
    return static_cast<int>(std::count_if(all.begin(), all.end(), [keycode](const KeyEvent& event) {
        return event.press && event.keycode == keycode;
    }));
}

int CoreClient::mappingChanges() {
    events();
    return m_mappingChanges;
}

bool CoreClient::grabKey(std::uint8_t keycode, std::uint16_t modifiers) const {
    const x11::XReply<xcb_generic_error_t> error(xcb_request_check(
        m_connection, xcb_grab_key_checked(m_connection, 0, m_connection.root(), modifiers, keycode,
                                           XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC)));
    return !error;
}

void CoreClient::grabKeyboard() const {
    const x11::XReply<xcb_grab_keyboard_reply_t> reply(
        xcb_grab_keyboard_reply(m_connection,
                                xcb_grab_keyboard(m_connection, 0, m_window, XCB_CURRENT_TIME,
                                                  XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
                                nullptr));
    if (!reply || reply->status != XCB_GRAB_STATUS_SUCCESS) throw std::runtime_error("no keyboard grab");
}

void CoreClient::ungrabKeyboard() const {
    xcb_ungrab_keyboard(m_connection, XCB_CURRENT_TIME);
    m_connection.roundTrip();
}

void CoreClient::grabPointer() const {
    const x11::XReply<xcb_grab_pointer_reply_t> reply(xcb_grab_pointer_reply(
        m_connection,
        xcb_grab_pointer(m_connection, 0, m_window, XCB_EVENT_MASK_BUTTON_PRESS, XCB_GRAB_MODE_ASYNC,
                         XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME),
        nullptr));
    if (!reply || reply->status != XCB_GRAB_STATUS_SUCCESS) throw std::runtime_error("no pointer grab");
}

void CoreClient::showUnmanaged(const xcb_rectangle_t& place) const {
    const xcb_window_t menu = xcb_generate_id(m_connection);
    const std::uint32_t unmanaged = 1;
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, menu, m_connection.root(), place.x, place.y,
                      place.width, place.height, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_OVERRIDE_REDIRECT, &unmanaged);
    xcb_map_window(m_connection, menu);
    m_connection.roundTrip();
}

void CoreClient::claimToAnswerPings() const {
    const xcb_atom_t ping = m_connection.atom("_NET_WM_PING");
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, m_connection.atom("WM_PROTOCOLS"),
                        XCB_ATOM_ATOM, 32, 1, &ping);
    m_connection.roundTrip();
}

// SPDX-License-Identifier: MIT
#include "display/Bell.h"

#include <stdexcept>

// The C header names a structure member "explicit".
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit

Bell::Bell(const std::string& display) : m_connection(x11::XConnection::open(display).value()) {
    const x11::XReply<xcb_xkb_use_extension_reply_t> reply(
        xcb_xkb_use_extension_reply(m_connection, xcb_xkb_use_extension(m_connection, 1, 0), nullptr));
    if (!reply) throw std::runtime_error("no XKB");
    m_firstEvent = xcb_get_extension_data(m_connection, &xcb_xkb_id)->first_event;
    constexpr std::uint16_t bell = XCB_XKB_EVENT_TYPE_BELL_NOTIFY;
    xcb_xkb_select_events(m_connection, XCB_XKB_ID_USE_CORE_KBD, bell, 0, bell, 0, 0, nullptr);
    m_connection.roundTrip();
}

int Bell::rung() {
    m_connection.roundTrip();
    int count = 0;
    while (const x11::XReply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)}) {
        // All of XKB's events have one number; which it is stands behind it.
        if ((event->response_type & 0x7F) == m_firstEvent && event->pad0 == XCB_XKB_BELL_NOTIFY) ++count;
    }
    return count;
}

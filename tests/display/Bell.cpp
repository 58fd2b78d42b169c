// SPDX-License-Identifier: MIT
#include "display/Bell.h"

#include <stdexcept>

#include "platform/x11/server/Extensions.h"

// The C header names a structure member "explicit".
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit

Bell::Bell(const std::string& display) : m_connection(x11::XConnection::open(display).value()) {
    const x11::Extensions extensions(m_connection);
    if (!extensions.use({x11::Extension::keyboard})) throw std::runtime_error("no XKB");
    m_firstEvent = extensions.firstKeyboardEvent();
    constexpr std::uint16_t bell = XCB_XKB_EVENT_TYPE_BELL_NOTIFY;
    xcb_xkb_select_events(m_connection, XCB_XKB_ID_USE_CORE_KBD, bell, 0, bell, 0, 0, nullptr);
    m_connection.roundTrip();
}

int Bell::rung() {
    m_connection.roundTrip();
    int count = 0;
    while (const x11::Event event = m_connection.nextEvent()) {
        if (event.keyboard(m_firstEvent) == XCB_XKB_BELL_NOTIFY) ++count;
    }
    return count;
}

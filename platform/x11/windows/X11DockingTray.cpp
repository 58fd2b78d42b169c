// SPDX-License-Identifier: MIT
#include "platform/x11/windows/X11DockingTray.h"

#include <utility>

namespace x11 {

X11DockingTray::X11DockingTray(XConnection connection)
    : m_connection(std::move(connection)),
      m_selection(m_connection.atom("_NET_SYSTEM_TRAY_S0")),
      m_manager(m_connection.atom("MANAGER")) {
    const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_connection, m_connection.root(), XCB_CW_EVENT_MASK, &mask);
    findOwner();
    dispatch();
}

void X11DockingTray::dispatch() {
    const xcb_window_t before = m_owner;
    // Asking for the owner can bring further events into the queue; they are read here as well, since nothing
    // would announce them any more.
    while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)}) {
        if (concernsTray(*event)) findOwner();
    }
    if (m_owner != before && m_changed) m_changed();
}

void X11DockingTray::findOwner() {
    // An owner that ends before its end is watched would not be noticed, so ask again after selecting.
    const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    do {
        m_owner = askForOwner();
        if (m_owner == XCB_WINDOW_NONE) return;
        xcb_change_window_attributes(m_connection, m_owner, XCB_CW_EVENT_MASK, &mask);
    } while (askForOwner() != m_owner);
}

xcb_window_t X11DockingTray::askForOwner() const {
    const XReply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        m_connection, xcb_get_selection_owner(m_connection, m_selection), nullptr));
    return reply ? reply->owner : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

bool X11DockingTray::concernsTray(const xcb_generic_event_t& event) const {
    constexpr std::uint8_t sentBit = 0x80;
    switch (event.response_type & static_cast<std::uint8_t>(~sentBit)) {
        case XCB_CLIENT_MESSAGE: {
            const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
            return message.type == m_manager && message.data.data32[1] == m_selection;
        }
        case XCB_DESTROY_NOTIFY:
            return reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == m_owner;
        default:
            return false;
    }
}

}  // namespace x11

// SPDX-License-Identifier: MIT
#include "platform/x11/windows/X11DockingTray.h"

#include <array>
#include <utility>

namespace x11 {

X11DockingTray::X11DockingTray(XConnection connection) : m_connection(std::move(connection)) {
    const auto atoms = m_connection.atoms(std::array{"_NET_SYSTEM_TRAY_S0", "MANAGER"});
    m_selection = atoms[0];
    m_manager = atoms[1];
    const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_connection, m_connection.root(), XCB_CW_EVENT_MASK, &mask);
    findOwner();
    dispatch();
}

void X11DockingTray::dispatch() {
    const xcb_window_t before = m_owner;
    // Asking for the owner can bring further events into the queue; they are read here as well, since nothing
    // would announce them any more.
    while (const Event event = m_connection.nextEvent()) {
        if (concernsTray(event)) findOwner();
    }
    if (m_owner != before && m_changed) m_changed();
}

void X11DockingTray::findOwner() {
    // An owner that ends before its end is watched would not be noticed, so ask again after selecting.
    const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    do {
        m_owner = m_connection.ownerOf(m_selection);
        if (m_owner == XCB_WINDOW_NONE) return;
        xcb_change_window_attributes(m_connection, m_owner, XCB_CW_EVENT_MASK, &mask);
    } while (m_connection.ownerOf(m_selection) != m_owner);
}

bool X11DockingTray::concernsTray(const Event& event) const {
    if (const auto* message = event.as(clientMessage)) {
        return message->type == m_manager && message->data.data32[1] == m_selection;
    }
    const auto* end = event.as(destroyNotify);
    return end != nullptr && end->window == m_owner;
}

}  // namespace x11

// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DockingTray.h"
#include "platform/EventSource.h"
#include "platform/x11/server/XConnection.h"

namespace x11 {

/// Watches the owner of the selection _NET_SYSTEM_TRAY_S0 (System Tray Protocol 0.4, "Locating the system
/// tray") on a connection of its own: a new owner announces itself with a MANAGER message to the root window,
/// the end of one shows as the end of its window.
class X11DockingTray final : public DockingTray, public EventSource {
  public:
    explicit X11DockingTray(XConnection connection);

    bool isPresent() const override { return m_owner != XCB_WINDOW_NONE; }
    void observe(std::function<void()> changed) override { m_changed = std::move(changed); }

    int fileDescriptor() const override { return m_connection.fileDescriptor(); }
    void dispatch() override;

  private:
    void findOwner();
    bool concernsTray(const Event& event) const;

    XConnection m_connection;
    xcb_atom_t m_selection = XCB_ATOM_NONE;
    xcb_atom_t m_manager = XCB_ATOM_NONE;
    xcb_window_t m_owner = XCB_WINDOW_NONE;
    std::function<void()> m_changed;
};

}  // namespace x11

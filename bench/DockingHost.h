// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <chrono>
#include <string>

/// The smallest host of the system tray protocol: it takes the first icon that asks to be docked, embeds it
/// and tells when it is on the screen.
class DockingHost {
  public:
    explicit DockingHost(const std::string& display);
    ~DockingHost();
    DockingHost(const DockingHost&) = delete;
    DockingHost& operator=(const DockingHost&) = delete;

    /// Serves until an icon is mapped inside the host; false after `deadline`.
    bool waitForIcon(std::chrono::milliseconds deadline);

  private:
    xcb_atom_t atom(const std::string& name) const;
    void becomeTray();
    void dock(xcb_window_t icon);

    xcb_connection_t* m_connection;
    xcb_window_t m_root = 0;
    xcb_window_t m_window = 0;
    xcb_window_t m_icon = 0;
};

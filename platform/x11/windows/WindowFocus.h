// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "platform/x11/server/WindowTree.h"
#include "platform/x11/server/XConnection.h"

namespace x11 {

/// Which window has the focus, by the server's account and by the window manager's, and how a manager is
/// asked to give it to another (Extended Window Manager Hints 1.5, _NET_ACTIVE_WINDOW).
///
/// Why both: a manager names its active window before the server has moved the focus there, and keys that are
/// sent in between reach nobody.
class WindowFocus {
  public:
    /// On whose behalf a manager is asked; it obeys a pager where it would only mark an application's window.
    enum class Source : std::uint32_t { application = 1, pager = 2 };

    /// The connection outlives the object.
    explicit WindowFocus(const XConnection& connection);

    /// The window that keys go to, as WindowTree::focus() tells it.
    xcb_window_t holder() const { return m_tree.focus(); }
    /// Whether keys go to that window or to one inside it.
    bool isIn(xcb_window_t window) const;
    /// The manager's account; XCB_WINDOW_NONE if it has none or there is no manager.
    xcb_window_t activeWindow() const;

    /// From then on the manager takes it for the time of the user's last input to the window.
    void date(xcb_window_t window, std::uint32_t time) const;
    /// Sent, not awaited. `time` is the server's at the user's last input; 0 if there was none.
    void request(xcb_window_t window, Source source, std::uint32_t time) const;

  private:
    const XConnection& m_connection;
    WindowTree m_tree;
    xcb_atom_t m_activeWindow;
};

}  // namespace x11

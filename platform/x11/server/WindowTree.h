// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <vector>

namespace x11 {

class XConnection;

/// Which windows lie in which, and which of them gets the keys, as the server has it now. A window that has
/// gone is one without parent and children. The connection outlives the object.
class WindowTree {
  public:
    explicit WindowTree(const XConnection& connection) : m_connection(connection) {}

    /// The window that has the focus: often one inside an application's window, XCB_INPUT_FOCUS_POINTER_ROOT
    /// where the pointer decides, XCB_WINDOW_NONE.
    xcb_window_t focus() const;
    /// The same, with the window below the pointer where that decides.
    xcb_window_t receiver() const;

    /// The window and those that it lies in, the outermost last, without the root; empty for what is no
    /// window.
    std::vector<xcb_window_t> lineOf(xcb_window_t window) const;
    /// The lowest first.
    std::vector<xcb_window_t> childrenOf(xcb_window_t window) const;

    bool exists(xcb_window_t window) const;
    /// Whether it is on the screen, though others may cover it.
    bool isOnScreen(xcb_window_t window) const;

  private:
    const XConnection& m_connection;
};

}  // namespace x11

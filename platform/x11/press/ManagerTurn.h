// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

namespace x11 {

class XConnection;

/// Tells when the window manager has come to what the server has told it so far: a question of ours, which it
/// answers in its turn (EWMH 1.5, _NET_REQUEST_FRAME_EXTENTS).
///
/// Why: one that is busy takes what it is given later than the windows that are typed into.
class ManagerTurn {
  public:
    /// Answered at that window, which is never mapped and outlives this as the connection does.
    ManagerTurn(const XConnection& connection, xcb_window_t window);

    /// False where nobody answers such questions.
    bool ask() const;
    bool hasCome() const;

  private:
    const XConnection& m_connection;
    xcb_window_t m_window;
    xcb_atom_t m_supported;
    xcb_atom_t m_request;
    xcb_atom_t m_answer;
};

}  // namespace x11

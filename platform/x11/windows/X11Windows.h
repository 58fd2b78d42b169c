// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Windows.h"
#include "platform/x11/server/ServerClock.h"
#include "platform/x11/server/WindowTree.h"
#include "platform/x11/server/XConnection.h"
#include "platform/x11/windows/WindowFocus.h"

class Clock;

namespace x11 {

/// Windows by way of the Extended Window Manager Hints 1.5, on a connection of its own, so that it can wait
/// without the toolkit's event loop.
class X11Windows : public Windows {
  public:
    X11Windows(XConnection connection, Clock& clock);

    /// Window managers heed what the toolkit says.
    void refuseFocus(const OwnWindow& /*window*/) override {}
    void activate(const OwnWindow& window, std::uint32_t userTime) override;
    void awaitFocusElsewhere(const OwnWindow& hidden) override;

  private:
    bool hasWindowManager() const;
    bool isFocusElsewhere(WindowId hidden) const;
    void giveFocusBack(WindowId hidden) const;

    XConnection m_connection;
    WindowFocus m_focus;
    WindowTree m_tree;
    ServerClock m_serverClock;
    Clock& m_clock;
    xcb_atom_t m_managerCheck = XCB_ATOM_NONE;
    xcb_window_t m_focusBefore = XCB_WINDOW_NONE;
};

}  // namespace x11

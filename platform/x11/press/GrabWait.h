// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "platform/run/RunWaiter.h"
#include "platform/x11/press/ManagerTurn.h"
#include "platform/x11/server/HiddenWindow.h"
#include "platform/x11/server/XConnection.h"

namespace x11 {

/// Finds out whether another client holds the keyboard, and waits until it does not.
///
/// The question is a grab of a window that is never mapped. It is refused either way: as already grabbed, or
/// because the window cannot be seen. So it never becomes a grab and no other client notices.
class GrabWait {
  public:
    GrabWait(const XConnection& connection, const Clock& clock);

    /// At most 0.5 s; fails with a hint if the keyboard is held even then.
    Step<> untilFree(RunWaiter& waiter) const;
    /// The same after a stroke that may be somebody's hot key, at most 0.2 s: a window manager that switches
    /// windows holds the keyboard meanwhile, and a menu as long as it is open, which gets the next keys.
    /// Waits at most 0.5 s before until the window manager has come to the stroke. Where it was held, at most
    /// 0.1 s more until another window has the focus, which some give only then.
    Step<> untilHotKeyIsDone(RunWaiter& waiter);

    /// At most that long, until the window manager has come to what was pressed so far. One that has let us
    /// wait in vain is left alone for a while.
    Step<> awaitManager(RunWaiter& waiter, std::chrono::milliseconds limit);

  private:
    bool isHeld() const;
    /// The window that has the focus, and the one that the window manager says is the active one.
    struct Focus {
        xcb_window_t window = XCB_WINDOW_NONE;
        xcb_window_t active = XCB_WINDOW_NONE;
    };
    Focus focus() const;
    bool hasMovedFrom(const Focus& before) const;
    /// Whether it is free by then.
    Step<bool> waitUntilFree(RunWaiter& waiter, std::chrono::milliseconds limit) const;

    const XConnection& m_connection;
    const Clock& m_clock;
    HiddenWindow m_window;
    ManagerTurn m_managerTurn;
    xcb_atom_t m_activeWindow;
    std::optional<Clock::Time> m_managerIsSilentUntil;
};

}  // namespace x11

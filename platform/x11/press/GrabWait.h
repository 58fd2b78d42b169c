// SPDX-License-Identifier: MIT
#pragma once

#include "platform/run/RunWaiter.h"
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

  private:
    bool isHeld() const;

    const XConnection& m_connection;
    const Clock& m_clock;
    HiddenWindow m_window;
};

}  // namespace x11

// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

/// Whether the user's screen is locked, as far as the desktop tells; where nothing tells, it never is.
class ScreenLock {
  public:
    virtual ~ScreenLock() = default;

    /// The newest that is known, also while the event loop does not run.
    virtual bool isLocked() const = 0;

    /// Who is told, from the event loop, when that changes; all of them, in order, for the lock's whole life.
    virtual void observe(std::function<void(bool locked)> changed) = 0;
};

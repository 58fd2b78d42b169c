// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"
#include "platform/KeyInjector.h"

/// Waits until a moment, or until the run is to stop.
class RunWait {
  public:
    virtual ~RunWait() = default;
    /// A halt is always a cancelled one: by the user's wish, an interrupt, or a desktop that is gone.
    virtual Step<> waitUntil(Clock::Time deadline) = 0;
};

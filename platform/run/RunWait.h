// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"
#include "platform/KeyInjector.h"

/// Waits until a moment, or until the run is to stop.
class RunWait {
  public:
    virtual ~RunWait() = default;
    /// A halt is a cancelled one, by the user's wish, an interrupt, or a desktop that is gone; or what the
    /// run relies on has failed.
    virtual Step<> waitUntil(Clock::Time deadline) = 0;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"
#include "platform/KeyInjector.h"

/// Waits until a moment, or until the user wishes to stop.
class RunWait {
  public:
    virtual ~RunWait() = default;
    /// Halts by the user's wish alone.
    virtual Step<> waitUntil(Clock::Time deadline) = 0;
};

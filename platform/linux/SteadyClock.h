// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"

/// The system's monotonic clock. Sleeps last at least as long as asked for, signals or not, and at most a
/// year.
class SteadyClock : public Clock {
  public:
    Time now() const override;
    void sleepFor(Seconds duration) override;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

/// Monotonic time. It goes on at one pace whatever is done to the calendar.
class Clock {
  public:
    using Time = std::chrono::steady_clock::time_point;
    using Seconds = std::chrono::duration<double>;

    virtual ~Clock() = default;

    virtual Time now() const = 0;

    /// Blocks the thread; zero and negative durations return at once.
    virtual void sleepFor(Seconds duration) = 0;
};

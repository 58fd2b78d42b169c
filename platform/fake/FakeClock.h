// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "platform/Clock.h"

/// A clock that stands still until a test turns it or somebody sleeps by it.
class FakeClock : public Clock {
  public:
    Time now() const override { return m_now; }

    /// Turns the clock on by the duration at once.
    void sleepFor(Seconds duration) override;

    void advance(Seconds duration);

    /// What happens while somebody sleeps, before the clock is turned on.
    void duringEachSleep(std::function<void()> hook) { m_hook = std::move(hook); }

    /// All that was slept, in order.
    const std::vector<Seconds>& sleeps() const { return m_sleeps; }

  private:
    /// Not the epoch, so that a time that was never set is seen.
    Time m_now = Time(std::chrono::hours(24));
    std::vector<Seconds> m_sleeps;
    std::function<void()> m_hook;
};

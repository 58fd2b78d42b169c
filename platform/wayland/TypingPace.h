// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "platform/Clock.h"
#include "platform/run/RunWait.h"

namespace wayland {

/// How fast a text is typed. A compositor throws out a program that lets some thousands of key events lie, so
/// that one which is busy for a while would be lost: no more than a thousand characters go at once, and no
/// more than that in a second.
class TypingPace {
  public:
    TypingPace(const Clock& clock, RunWait& wait) : m_clock(clock), m_wait(wait) {}

    /// Waits until so many more may go. Also where nothing is waited for: the user may wish to stop.
    Step<> keep(std::size_t characters);

  private:
    const Clock& m_clock;
    RunWait& m_wait;
    /// Characters that may go at once, as of that moment.
    double m_allowance = 0;
    Clock::Time m_allowedAt = {};
};

}  // namespace wayland

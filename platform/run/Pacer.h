// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "platform/run/RunWait.h"

/// The pauses of one run, each reckoned from the end of the one before, so that neither the time that strokes
/// take nor late wake-ups add up.
///
/// A lag of more than 20 ms (a long text, a wait for the keyboard) is not made up: strokes that come in a
/// rush are not what was recorded.
class Pacer {
  public:
    Pacer(const Clock& clock, RunWait& wait) : m_clock(clock), m_wait(wait) {}

    /// The moment from which the first pause counts, if none has been yet.
    void begin();

    /// Counts from now on: what has passed since the last pause is nobody's lag.
    void restart() { m_anchor = m_clock.now(); }

    /// Zero, negative durations and no numbers return at once; what is beyond the clock's range never ends.
    Step<> pause(double seconds);

  private:
    const Clock& m_clock;
    RunWait& m_wait;
    std::optional<Clock::Time> m_anchor;
};

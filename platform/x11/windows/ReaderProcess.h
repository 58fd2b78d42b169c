// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <optional>

#include "platform/Clock.h"

namespace x11 {

/// A process whose window is typed into and that answers no questions: what it does tells whether it has
/// taken in what was typed.
///
/// One that has slept a while with nothing unread has; one that is never seen asleep for so long, since it
/// animates something, has after a while with nothing unread. A nap in the middle of its work, and being
/// stopped, is no such sleep.
class ReaderProcess {
  public:
    explicit ReaderProcess(pid_t id) : m_id(id) {}

    /// To be asked again and again, a few milliseconds apart.
    bool hasRead(Clock::Time now);

  private:
    pid_t m_id;
    /// How often it had been put to sleep or stopped, and since when it sleeps in one piece.
    long m_switches = -1;
    std::optional<Clock::Time> m_asleepSince;
    /// Since when it has been awake now and then.
    std::optional<Clock::Time> m_livelySince;
};

}  // namespace x11

// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

#include "platform/Descriptor.h"

/// One descriptor for an event loop in place of many: connections, a kick for what is already in memory, and
/// a timer.
class Wakeups {
  public:
    Wakeups();

    /// Readable when there is something to do; -1 when the system had no descriptor left.
    int fileDescriptor() const { return m_epoll.number(); }

    void watch(int fileDescriptor) const;
    void unwatch(int fileDescriptor) const;

    /// Makes the descriptor readable until takeKick().
    void kick() const;
    void takeKick() const;

    /// Starts the timer, unless it runs already and ends sooner.
    void startTimer(std::chrono::milliseconds duration);
    /// True once after the timer has run down.
    bool takeTimer();

  private:
    Descriptor m_epoll;
    Descriptor m_event;
    Descriptor m_timer;
    bool m_timerRuns = false;
};

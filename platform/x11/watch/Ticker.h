// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

#include "platform/Descriptor.h"

namespace x11 {

/// Wakes again and again, as long as it is asked to.
class Ticker {
  public:
    Ticker();

    /// Readable once a tick has come, until it is taken.
    int fileDescriptor() const { return m_timer.number(); }

    /// With that time in between, which is zero for no ticks. The same again changes nothing.
    void tickEvery(std::chrono::milliseconds period);
    /// True once after one or more ticks.
    bool take() const;

  private:
    Descriptor m_timer;
    std::chrono::milliseconds m_period{0};
};

}  // namespace x11

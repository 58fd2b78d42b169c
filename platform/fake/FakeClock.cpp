// SPDX-License-Identifier: MIT
#include "platform/fake/FakeClock.h"

void FakeClock::sleepFor(Seconds duration) {
    m_sleeps.push_back(duration);
    if (m_hook) m_hook();
    if (duration.count() > 0) advance(duration);
}

void FakeClock::advance(Seconds duration) { m_now += std::chrono::round<Time::duration>(duration); }

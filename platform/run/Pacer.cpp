// SPDX-License-Identifier: MIT
#include "platform/run/Pacer.h"

namespace {

constexpr std::chrono::milliseconds maxLag{20};

Clock::Time later(Clock::Time time, double seconds) {
    // One second short, since the difference is rounded.
    const Clock::Seconds room = Clock::Time::max() - time - std::chrono::seconds(1);
    if (seconds >= room.count()) return Clock::Time::max();
    return time + std::chrono::duration_cast<Clock::Time::duration>(Clock::Seconds(seconds));
}

}  // namespace

void Pacer::begin() {
    if (!m_anchor) m_anchor = m_clock.now();
}

Step<> Pacer::pause(double seconds) {
    if (!(seconds > 0)) return {};
    begin();
    const Clock::Time now = m_clock.now();
    if (now - *m_anchor > maxLag) m_anchor = now;
    m_anchor = later(*m_anchor, seconds);
    return m_wait.waitUntil(*m_anchor);
}

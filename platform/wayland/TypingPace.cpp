// SPDX-License-Identifier: MIT
#include "platform/wayland/TypingPace.h"

#include <algorithm>
#include <chrono>

namespace wayland {

namespace {

constexpr double mostAtOnce = 1000;
constexpr double mostInASecond = 1000;

}  // namespace

Step<> TypingPace::keep(std::size_t characters) {
    const Clock::Time now = m_clock.now();
    const double gained = Clock::Seconds(now - m_allowedAt).count() * mostInASecond;
    m_allowance = std::min(mostAtOnce, m_allowance + gained) - static_cast<double>(characters);
    m_allowedAt = now;
    if (m_allowance >= 0) return m_wait.waitUntil(now);
    const Clock::Seconds lag(-m_allowance / mostInASecond);
    return m_wait.waitUntil(now + std::chrono::duration_cast<Clock::Time::duration>(lag));
}

}  // namespace wayland

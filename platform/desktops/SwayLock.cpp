// SPDX-License-Identifier: MIT
#include "platform/desktops/SwayLock.h"

#include <algorithm>
#include <chrono>

namespace {
constexpr std::chrono::milliseconds betweenLooks{10};
}  // namespace

bool SwayLock::isLocked() {
    const Clock::Time now = m_clock.now();
    if (!m_looked || now - *m_looked >= betweenLooks) {
        m_isLocked = look();
        m_looked = now;
    }
    return m_isLocked;
}

bool SwayLock::look() {
    const auto seats = m_connection.ask(SwayConnection::Request::seats);
    // A password may be typed while sway does not answer.
    if (!seats) return m_lockers.isAnyRunning(m_connection.user());
    const auto& all = seats.value().items();
    const bool hasAWindow =
        std::any_of(all.begin(), all.end(), [](const Json& seat) { return seat["focus"].number() != 0; });
    return !hasAWindow && m_lockers.isAnyRunning(m_connection.user());
}

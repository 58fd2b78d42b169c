// SPDX-License-Identifier: MIT
#include "platform/press/TailWait.h"

#include <algorithm>

namespace {

/// At hands that hold what the run holds too.
constexpr std::chrono::milliseconds betweenLooks{50};

}  // namespace

Step<> TailWait::waitUntil(Clock::Time deadline) {
    while (m_tail.isDown() && m_tail.end() <= deadline) {
        if (auto ended = endTail(); !ended) return ended;
        if (m_clock.now() >= deadline || !m_tail.isDown()) break;
        // What hands hold too stays.
        auto waited = m_waiter.waitUntil(std::min(deadline, m_clock.now() + betweenLooks));
        if (!waited) return waited;
    }
    return m_waiter.waitUntil(deadline);
}

Step<> TailWait::endTail() {
    while (m_tail.isDown()) {
        if (auto heeded = m_waiter.heedUser(); !heeded) return heeded;
        const KeycodeSet staying = m_modifiersOfHands();
        if (m_clock.now() >= m_tail.end() || staying.any()) {
            release(staying);
            break;
        }
        m_waiter.awaitNews(m_tail.end());
    }
    return {};
}

void TailWait::endTailInTime() {
    if (m_tail.isDown() && m_clock.now() >= m_tail.end()) release(m_modifiersOfHands());
}

void TailWait::rest() {
    if (!m_tail.isDown()) return;
    m_clock.sleepFor(m_tail.end() - m_clock.now());
    release({});
}

void TailWait::release(const KeycodeSet& staying) {
    m_tail.release(staying);
    m_output.flush();
}

// SPDX-License-Identifier: MIT
#include "platform/press/TailWait.h"

Step<> TailWait::waitUntil(Clock::Time deadline) {
    if (m_tail.isDown() && m_tail.end() <= deadline) {
        if (auto ended = endTail(); !ended) return ended;
    }
    return m_waiter.waitUntil(deadline);
}

Step<> TailWait::endTail() {
    while (m_tail.isDown()) {
        if (auto heeded = m_waiter.heedUser(); !heeded) return heeded;
        if (m_clock.now() >= m_tail.end() || m_handsHoldModifiers()) {
            release();
        } else {
            m_waiter.awaitNews(m_tail.end());
        }
    }
    return {};
}

void TailWait::endTailInTime() {
    if (m_tail.isDown() && m_clock.now() >= m_tail.end()) release();
}

void TailWait::release() {
    m_tail.release();
    m_output.flush();
}

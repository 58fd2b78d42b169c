// SPDX-License-Identifier: MIT
#include "platform/wayland/WaylandWindows.h"

namespace wayland {

namespace {

constexpr std::chrono::milliseconds longestWait{500};
constexpr std::chrono::milliseconds betweenLooks{5};

}  // namespace

void WaylandWindows::refuseFocus(const OwnWindow& window) {
    if (window.id != none) {
        m_refuser(window.id);
    } else if (m_compositor != nullptr) {
        m_compositor->refuseFocus(window.title);
    }
}

void WaylandWindows::activate(const OwnWindow& window, std::uint32_t /*userTime*/) {
    if (m_compositor == nullptr) return;
    m_awaited = window;
    m_end = m_clock.now() + longestWait;
    focusAwaited();
}

void WaylandWindows::dispatch() {
    if (m_wakeups.takeTimer()) focusAwaited();
}

void WaylandWindows::focusAwaited() {
    if (!m_awaited) return;
    if (m_compositor->focus(*m_awaited) || m_clock.now() >= m_end) {
        m_awaited.reset();
    } else {
        m_wakeups.startTimer(betweenLooks);
    }
}

void WaylandWindows::awaitFocusElsewhere(WindowId hidden) {
    m_awaited.reset();
    if (m_compositor == nullptr) return;
    const Clock::Time end = m_clock.now() + longestWait;
    const auto isElsewhere = [&] {
        const auto front = m_compositor->focusedXWindow();
        return front && (hidden == none || *front != hidden);
    };
    while (!isElsewhere() && m_clock.now() < end) m_clock.sleepFor(betweenLooks);
}

}  // namespace wayland

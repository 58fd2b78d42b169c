// SPDX-License-Identifier: MIT
#include "platform/wayland/WaylandWindows.h"

namespace wayland {

namespace {

constexpr std::chrono::milliseconds longestWait{500};
constexpr std::chrono::milliseconds betweenLooks{5};

/// Until a window has been painted.
constexpr std::chrono::seconds longestPainting{5};
constexpr std::chrono::milliseconds betweenLaterLooks{50};

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
    m_begin = m_clock.now();
    focusAwaited();
}

void WaylandWindows::dispatch() {
    if (m_wakeups.takeTimer()) focusAwaited();
}

void WaylandWindows::focusAwaited() {
    if (!m_awaited) return;
    const bool isFocused = static_cast<bool>(m_compositor->focus(*m_awaited));
    const auto lasted = m_clock.now() - m_begin;
    if (isFocused || lasted >= longestPainting) {
        m_awaited.reset();
    } else {
        m_wakeups.startTimer(lasted < longestWait ? betweenLooks : betweenLaterLooks);
    }
}

void WaylandWindows::awaitFocusElsewhere(const OwnWindow& hidden) {
    m_awaited.reset();
    if (m_compositor == nullptr) return;
    const Clock::Time end = m_clock.now() + longestWait;
    while (!m_compositor->isElsewhere(hidden) && m_clock.now() < end) m_clock.sleepFor(betweenLooks);
}

}  // namespace wayland

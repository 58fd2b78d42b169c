// SPDX-License-Identifier: MIT
#include "platform/wayland/WaylandWindows.h"

namespace wayland {

namespace {

constexpr std::chrono::milliseconds longestWait{500};
constexpr std::chrono::milliseconds betweenLooks{5};

}  // namespace

/// The window may not have come to the compositor yet.
void WaylandWindows::activate(WindowId window, std::uint32_t /*userTime*/) {
    if (m_compositor == nullptr) return;
    const Clock::Time end = m_clock.now() + longestWait;
    while (!m_compositor->focusXWindow(window) && m_clock.now() < end) m_clock.sleepFor(betweenLooks);
}

void WaylandWindows::awaitFocusElsewhere(WindowId hidden) {
    if (m_compositor == nullptr) return;
    const Clock::Time end = m_clock.now() + longestWait;
    const auto isElsewhere = [&] {
        const auto front = m_compositor->focusedXWindow();
        return front && (hidden == none || *front != hidden);
    };
    while (!isElsewhere() && m_clock.now() < end) m_clock.sleepFor(betweenLooks);
}

}  // namespace wayland

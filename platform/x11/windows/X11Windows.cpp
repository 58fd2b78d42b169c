// SPDX-License-Identifier: MIT
#include "platform/x11/windows/X11Windows.h"

#include <utility>

#include "platform/Clock.h"
#include "platform/x11/server/Property.h"

namespace x11 {

namespace {
constexpr std::chrono::milliseconds longestWait{500};
constexpr std::chrono::microseconds betweenLooks{500};
}  // namespace

X11Windows::X11Windows(XConnection connection, Clock& clock)
    : m_connection(std::move(connection)),
      m_focus(m_connection),
      m_tree(m_connection),
      m_serverClock(m_connection),
      m_clock(clock) {
    m_managerCheck = m_connection.atom("_NET_SUPPORTING_WM_CHECK");
}

void X11Windows::activate(const OwnWindow& window, std::uint32_t userTime) {
    m_focusBefore = m_focus.holder();
    const std::uint32_t time = userTime != 0 ? userTime : m_serverClock.now();
    m_focus.date(window.id, time);
    if (hasWindowManager()) {
        m_focus.request(window.id, WindowFocus::Source::application, time);
    } else {
        xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_PARENT, window.id, time);
    }
    m_connection.roundTrip();
}

void X11Windows::awaitFocusElsewhere(const OwnWindow& hidden) {
    const bool managed = hasWindowManager();
    const Clock::Time end = m_clock.now() + longestWait;
    const auto isReady = [&] {
        return managed ? isFocusElsewhere(hidden.id) : !m_tree.isOnScreen(hidden.id);
    };
    while (!isReady() && m_clock.now() < end) m_clock.sleepFor(betweenLooks);
    if (!managed) giveFocusBack(hidden.id);
}

// A manager that ended leaves its mark on the root window; only one whose own window carries it too is alive.
bool X11Windows::hasWindowManager() const {
    const auto checkAt = [this](xcb_window_t window) {
        return Property(m_connection, window, m_managerCheck).number(XCB_ATOM_WINDOW);
    };
    const xcb_window_t check = checkAt(m_connection.root());
    return check != XCB_WINDOW_NONE && checkAt(check) == check;
}

bool X11Windows::isFocusElsewhere(WindowId hidden) const {
    const xcb_window_t active = m_focus.activeWindow();
    return active != XCB_WINDOW_NONE && active != hidden && !m_tree.isOnScreen(hidden) &&
           m_focus.isIn(active);
}

void X11Windows::giveFocusBack(WindowId hidden) const {
    if (hidden == none) return;
    if (m_focusBefore != XCB_INPUT_FOCUS_POINTER_ROOT && !m_tree.isOnScreen(m_focusBefore)) return;
    xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_PARENT, m_focusBefore, XCB_CURRENT_TIME);
    m_connection.roundTrip();
}

}  // namespace x11

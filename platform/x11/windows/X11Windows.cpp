// SPDX-License-Identifier: MIT
#include "platform/x11/windows/X11Windows.h"

#include <utility>

#include "platform/Clock.h"

namespace x11 {

namespace {
constexpr std::chrono::milliseconds longestWait{500};
constexpr std::chrono::microseconds betweenLooks{500};
}  // namespace

X11Windows::X11Windows(XConnection connection, Clock& clock)
    : m_connection(std::move(connection)),
      m_focus(m_connection),
      m_clock(clock),
      m_managerCheck(m_connection.atom("_NET_SUPPORTING_WM_CHECK")),
      m_userTime(m_connection.atom("_NET_WM_USER_TIME")),
      m_userTimeWindow(m_connection.atom("_NET_WM_USER_TIME_WINDOW")),
      m_own(xcb_generate_id(m_connection)) {
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(m_connection, 0, m_own, m_connection.root(), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &mask);
}

void X11Windows::activate(WindowId window, std::uint32_t userTime) {
    m_focusBefore = m_focus.holder();
    const std::uint32_t time = userTime != 0 ? userTime : serverTime();
    setUserTime(window, time);
    if (hasWindowManager()) {
        m_focus.request(window, WindowFocus::Source::application, time);
    } else {
        xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_PARENT, window, time);
    }
    m_connection.roundTrip();
}

void X11Windows::awaitFocusElsewhere(WindowId hidden) {
    const bool managed = hasWindowManager();
    const Clock::Time end = m_clock.now() + longestWait;
    const auto isReady = [&] { return managed ? isFocusElsewhere(hidden) : !isOnScreen(hidden); };
    while (!isReady() && m_clock.now() < end) m_clock.sleepFor(betweenLooks);
    if (!managed) giveFocusBack(hidden);
}

// A manager that ended leaves its mark on the root window; only one whose own window carries it too is alive.
bool X11Windows::hasWindowManager() const {
    const xcb_window_t check = propertyOf(m_connection, m_connection.root(), m_managerCheck, XCB_ATOM_WINDOW);
    return check != XCB_WINDOW_NONE &&
           propertyOf(m_connection, check, m_managerCheck, XCB_ATOM_WINDOW) == check;
}

bool X11Windows::isFocusElsewhere(WindowId hidden) const {
    const xcb_window_t active = m_focus.activeWindow();
    return active != XCB_WINDOW_NONE && active != hidden && !isOnScreen(hidden) && m_focus.isIn(active);
}

void X11Windows::giveFocusBack(WindowId hidden) const {
    if (hidden == none) return;
    if (m_focusBefore != XCB_INPUT_FOCUS_POINTER_ROOT && !isOnScreen(m_focusBefore)) return;
    xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_PARENT, m_focusBefore, XCB_CURRENT_TIME);
    m_connection.roundTrip();
}

bool X11Windows::isOnScreen(xcb_window_t window) const {
    if (window == XCB_WINDOW_NONE) return false;
    const XReply<xcb_get_window_attributes_reply_t> reply(xcb_get_window_attributes_reply(
        m_connection, xcb_get_window_attributes(m_connection, window), nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

void X11Windows::setUserTime(WindowId window, std::uint32_t time) const {
    const xcb_window_t separate = propertyOf(m_connection, window, m_userTimeWindow, XCB_ATOM_WINDOW);
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, separate != XCB_WINDOW_NONE ? separate : window,
                        m_userTime, XCB_ATOM_CARDINAL, 32, 1, &time);
}

// The server stamps a change of a property, also one that appends nothing.
std::uint32_t X11Windows::serverTime() const {
    xcb_change_property(m_connection, XCB_PROP_MODE_APPEND, m_own, m_userTime, XCB_ATOM_CARDINAL, 32, 0,
                        nullptr);
    m_connection.roundTrip();
    std::uint32_t time = XCB_CURRENT_TIME;
    while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)}) {
        if (event->response_type != XCB_PROPERTY_NOTIFY) continue;
        time = reinterpret_cast<const xcb_property_notify_event_t&>(*event).time;
    }
    return time;
}

}  // namespace x11

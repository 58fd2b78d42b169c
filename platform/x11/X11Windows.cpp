// SPDX-License-Identifier: MIT
#include "platform/x11/X11Windows.h"

#include <utility>

#include "platform/Clock.h"

namespace {
constexpr std::chrono::milliseconds longestWait{500};
constexpr std::chrono::microseconds betweenLooks{500};
}  // namespace

X11Windows::X11Windows(XConnection connection, Clock& clock)
    : m_connection(std::move(connection)),
      m_clock(clock),
      m_activeWindow(m_connection.atom("_NET_ACTIVE_WINDOW")),
      m_managerCheck(m_connection.atom("_NET_SUPPORTING_WM_CHECK")),
      m_userTime(m_connection.atom("_NET_WM_USER_TIME")),
      m_userTimeWindow(m_connection.atom("_NET_WM_USER_TIME_WINDOW")),
      m_own(xcb_generate_id(m_connection)) {
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(m_connection, 0, m_own, m_connection.root(), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &mask);
}

void X11Windows::activate(WindowId window, std::uint32_t userTime) {
    m_focusBefore = focusHolder();
    const std::uint32_t time = userTime != 0 ? userTime : serverTime();
    setUserTime(window, time);
    if (hasWindowManager()) {
        askForActivation(window, time);
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
    const xcb_window_t check = property(m_connection.root(), m_managerCheck, XCB_ATOM_WINDOW);
    return check != XCB_WINDOW_NONE && property(check, m_managerCheck, XCB_ATOM_WINDOW) == check;
}

bool X11Windows::isFocusElsewhere(WindowId hidden) const {
    const xcb_window_t active = property(m_connection.root(), m_activeWindow, XCB_ATOM_WINDOW);
    return active != XCB_WINDOW_NONE && active != hidden && !isOnScreen(hidden) && holdsFocus(active);
}

void X11Windows::giveFocusBack(WindowId hidden) const {
    if (hidden == none) return;
    if (m_focusBefore != XCB_INPUT_FOCUS_POINTER_ROOT && !isOnScreen(m_focusBefore)) return;
    xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_PARENT, m_focusBefore, XCB_CURRENT_TIME);
    m_connection.roundTrip();
}

xcb_window_t X11Windows::focusHolder() const {
    const XReply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    return reply ? reply->focus : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

xcb_window_t X11Windows::parentOf(xcb_window_t window) const {
    const XReply<xcb_query_tree_reply_t> reply(
        xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, window), nullptr));
    return reply ? reply->parent : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

// The focus may be on a child that the application moved it to.
bool X11Windows::holdsFocus(xcb_window_t window) const {
    xcb_window_t holder = focusHolder();
    while (holder > XCB_INPUT_FOCUS_POINTER_ROOT && holder != m_connection.root()) {
        if (holder == window) return true;
        holder = parentOf(holder);
    }
    return false;
}

bool X11Windows::isOnScreen(xcb_window_t window) const {
    if (window == XCB_WINDOW_NONE) return false;
    const XReply<xcb_get_window_attributes_reply_t> reply(xcb_get_window_attributes_reply(
        m_connection, xcb_get_window_attributes(m_connection, window), nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

std::uint32_t X11Windows::property(xcb_window_t window, xcb_atom_t name, xcb_atom_t type) const {
    const XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        m_connection, xcb_get_property(m_connection, 0, window, name, type, 0, 1), nullptr));
    if (!reply || reply->format != 32 || reply->value_len == 0) return 0;
    return *static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
}

void X11Windows::setUserTime(WindowId window, std::uint32_t time) const {
    const xcb_window_t separate = property(window, m_userTimeWindow, XCB_ATOM_WINDOW);
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, separate != XCB_WINDOW_NONE ? separate : window,
                        m_userTime, XCB_ATOM_CARDINAL, 32, 1, &time);
}

void X11Windows::askForActivation(WindowId window, std::uint32_t time) const {
    constexpr std::uint32_t fromApplication = 1;
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = m_activeWindow;
    message.data.data32[0] = fromApplication;
    message.data.data32[1] = time;
    xcb_send_event(m_connection, 0, m_connection.root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&message));
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

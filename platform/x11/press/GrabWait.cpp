// SPDX-License-Identifier: MIT
#include "platform/x11/press/GrabWait.h"

namespace x11 {

namespace {

constexpr std::chrono::milliseconds limit{500};
constexpr std::chrono::milliseconds betweenLooks{2};

}  // namespace

GrabWait::GrabWait(const XConnection& connection, const Clock& clock)
    : m_connection(connection), m_clock(clock), m_window(connection) {}

bool GrabWait::isHeld() const {
    const auto reply = replyTo(m_connection,
                               xcb_grab_keyboard(m_connection, 0, m_window.id(), XCB_CURRENT_TIME,
                                                 XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
                               xcb_grab_keyboard_reply);
    return reply && reply->status != XCB_GRAB_STATUS_NOT_VIEWABLE;
}

Step<> GrabWait::untilFree(RunWaiter& waiter) const {
    const Clock::Time end = m_clock.now() + limit;
    while (isHeld()) {
        if (m_clock.now() >= end) {
            return Error{"Another program holds the keyboard, so that no keys can be pressed.",
                         "Close the menu, the question or the screen lock that is open, and play again."};
        }
        auto waited = waiter.waitUntil(m_clock.now() + betweenLooks);
        if (!waited) return waited;
    }
    return {};
}

}  // namespace x11

// SPDX-License-Identifier: MIT
#include "platform/x11/press/GrabWait.h"

#include "platform/Sentence.h"
#include "platform/x11/server/Property.h"
#include "platform/x11/server/WindowTree.h"

namespace x11 {

namespace {

constexpr std::chrono::milliseconds limitForOthers{500};
constexpr std::chrono::milliseconds limitForManager{500};
constexpr std::chrono::seconds silence{10};
constexpr std::chrono::milliseconds limitForHotKeys{200};
constexpr std::chrono::milliseconds limitForFocus{100};
constexpr std::chrono::milliseconds betweenLooks{2};

}  // namespace

GrabWait::GrabWait(const XConnection& connection, const Clock& clock)
    : m_connection(connection),
      m_clock(clock),
      m_window(connection),
      m_managerTurn(connection, m_window.id()),
      m_activeWindow(connection.atom("_NET_ACTIVE_WINDOW")) {}

bool GrabWait::isHeld() const {
    const auto reply = replyTo(m_connection,
                               xcb_grab_keyboard(m_connection, 0, m_window.id(), XCB_CURRENT_TIME,
                                                 XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
                               xcb_grab_keyboard_reply);
    return reply && reply->status != XCB_GRAB_STATUS_NOT_VIEWABLE;
}

Step<bool> GrabWait::waitUntilFree(RunWaiter& waiter, std::chrono::milliseconds limit) const {
    const Clock::Time end = m_clock.now() + limit;
    while (isHeld()) {
        if (m_clock.now() >= end) return false;
        if (const auto waited = waiter.waitUntil(m_clock.now() + betweenLooks); !waited)
            return waited.error();
    }
    return true;
}

Step<> GrabWait::untilFree(RunWaiter& waiter) const {
    const auto isFree = waitUntilFree(waiter, limitForOthers);
    if (!isFree) return isFree.error();
    if (isFree.value()) return {};
    return Error{
        sentence("Keys", "Another program holds the keyboard, so that no keys can be pressed."),
        sentence("Keys", "Close the menu, the question or the screen lock that is open, and play again.")};
}

Step<> GrabWait::untilHotKeyIsDone(RunWaiter& waiter) {
    const Focus before = focus();
    if (auto come = awaitManager(waiter, limitForManager); !come) return come;
    if (!isHeld()) return {};
    const auto isFree = waitUntilFree(waiter, limitForHotKeys);
    if (!isFree) return isFree.error();
    const Clock::Time end = m_clock.now() + limitForFocus;
    while (isFree.value() && !hasMovedFrom(before) && m_clock.now() < end) {
        if (auto waited = waiter.waitUntil(m_clock.now() + betweenLooks); !waited) return waited;
    }
    return {};
}

Step<> GrabWait::awaitManager(RunWaiter& waiter, std::chrono::milliseconds limit) {
    const bool isSilent = m_managerIsSilentUntil && m_clock.now() < *m_managerIsSilentUntil;
    if (isSilent || !m_managerTurn.ask()) return {};
    const Clock::Time end = m_clock.now() + limit;
    while (!m_managerTurn.hasCome()) {
        if (m_clock.now() >= end) {
            m_managerIsSilentUntil = m_clock.now() + silence;
            return {};
        }
        if (auto waited = waiter.waitUntil(m_clock.now() + betweenLooks); !waited) return waited;
    }
    return {};
}

GrabWait::Focus GrabWait::focus() const {
    return {WindowTree(m_connection).focus(),
            Property(m_connection, m_connection.root(), m_activeWindow).number(XCB_ATOM_WINDOW)};
}

/// The window manager says so when the window has the focus, which may go another way there; not all say it.
bool GrabWait::hasMovedFrom(const Focus& before) const {
    const Focus now = focus();
    return now.window != before.window && (before.active == XCB_WINDOW_NONE ||
                                           (now.active != before.active && now.active != XCB_WINDOW_NONE));
}

}  // namespace x11

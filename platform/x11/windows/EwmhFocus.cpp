// SPDX-License-Identifier: MIT
#include "platform/x11/windows/EwmhFocus.h"

#include <utility>

#include "platform/Sentence.h"

namespace x11 {

EwmhFocus::EwmhFocus(XConnection connection)
    : m_connection(std::move(connection)),
      m_focus(m_connection),
      m_tree(m_connection),
      m_serverClock(m_connection) {}

Result<void> EwmhFocus::focusXWindow(std::uint32_t xWindow) {
    const xcb_timestamp_t time = m_serverClock.now();
    // A window that is only about to appear gets the focus for its date.
    m_focus.date(xWindow, time);
    if (!m_tree.isOnScreen(xWindow))
        return Error{sentence("Windows", "The window is not on the screen."), ""};
    m_focus.request(xWindow, WindowFocus::Source::application, time);
    m_connection.roundTrip();
    return {};
}

}  // namespace x11

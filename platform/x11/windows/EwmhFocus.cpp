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

Result<void> EwmhFocus::focus(const OwnWindow& window) {
    const xcb_timestamp_t time = m_serverClock.now();
    // A window that is only about to appear gets the focus for its date.
    m_focus.date(window.id, time);
    if (!m_tree.isOnScreen(window.id))
        return Error{sentence("Windows", "The window is not on the screen."), ""};
    m_focus.request(window.id, WindowFocus::Source::application, time);
    m_connection.roundTrip();
    return {};
}

}  // namespace x11

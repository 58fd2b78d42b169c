// SPDX-License-Identifier: MIT
#include "platform/x11/server/ServerClock.h"

#include "platform/x11/server/Property.h"

namespace x11 {

void ServerClock::ask() const {
    Property(m_connection, m_window.id(), XCB_ATOM_CARDINAL).append(XCB_ATOM_CARDINAL, {});
}

std::optional<xcb_timestamp_t> ServerClock::answerIn(const Event& event) const {
    const auto* change = event.as(propertyNotify);
    if (change == nullptr || change->window != m_window.id()) return std::nullopt;
    return change->time;
}

xcb_timestamp_t ServerClock::now() const {
    ask();
    m_connection.roundTrip();
    xcb_timestamp_t time = XCB_CURRENT_TIME;
    while (const Event event = m_connection.nextEvent()) time = answerIn(event).value_or(time);
    return time;
}

}  // namespace x11

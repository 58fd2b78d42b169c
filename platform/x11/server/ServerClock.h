// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "platform/x11/server/HiddenWindow.h"
#include "platform/x11/server/XConnection.h"

namespace x11 {

/// Tells what time it is for the server: what selections and requests for the focus are dated with. The
/// server stamps a change of a property, also one that changes nothing.
class ServerClock {
  public:
    /// The connection outlives the object.
    explicit ServerClock(const XConnection& connection)
        : m_connection(connection), m_window(connection, XCB_EVENT_MASK_PROPERTY_CHANGE) {}

    /// Asks; the answer comes as an event.
    void ask() const;
    /// What the event tells if it is the answer.
    std::optional<xcb_timestamp_t> answerIn(const Event& event) const;

    /// Asks and waits; other events that come meanwhile are dropped. XCB_CURRENT_TIME if the server is gone.
    xcb_timestamp_t now() const;

  private:
    const XConnection& m_connection;
    HiddenWindow m_window;
};

}  // namespace x11

// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <array>
#include <cstdint>

namespace x11 {

/// What one client says to another, or to the window manager, by way of the server.
struct ClientMessage {
    /// The window that it is about.
    xcb_window_t window = XCB_WINDOW_NONE;
    xcb_atom_t type = XCB_ATOM_NONE;
    std::array<std::uint32_t, 5> numbers{};

    /// Queued: to all who have selected one of the events at `receiver`; without events to who made it.
    void sendTo(xcb_connection_t* connection, xcb_window_t receiver,
                std::uint32_t events = XCB_EVENT_MASK_NO_EVENT) const;
};

}  // namespace x11

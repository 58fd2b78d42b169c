// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <utility>

namespace x11 {

class XConnection;

/// A window of our own that nobody ever sees: to own selections, to be answered at, to ask in the name of. It
/// goes with the object, which the connection must outlive.
class HiddenWindow {
  public:
    /// The connection is sent the events of the mask, XCB_EVENT_MASK_...
    explicit HiddenWindow(const XConnection& connection, std::uint32_t events = XCB_EVENT_MASK_NO_EVENT);
    ~HiddenWindow();
    HiddenWindow(HiddenWindow&& other) noexcept
        : m_connection(other.m_connection), m_id(std::exchange(other.m_id, XCB_WINDOW_NONE)) {}
    HiddenWindow& operator=(HiddenWindow&&) = delete;
    HiddenWindow(const HiddenWindow&) = delete;
    HiddenWindow& operator=(const HiddenWindow&) = delete;

    xcb_window_t id() const { return m_id; }

  private:
    xcb_connection_t* m_connection;
    xcb_window_t m_id;
};

}  // namespace x11

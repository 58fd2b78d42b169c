// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "platform/desktops/SwayConnection.h"

/// What sway tells of its windows and keyboards, asked for each time. A sway that has gone knows nothing.
class SwayDesktop {
  public:
    explicit SwayDesktop(SwayConnection connection) : m_connection(std::move(connection)) {}

    /// The group in force on the keyboard with the most of them, from 0; the virtual ones do not count where
    /// there is another.
    std::uint32_t group();

    /// The number of the X11 window that keys go to, 0 where it is a native one; empty if there is none.
    std::optional<std::uint32_t> focusedXWindow();
    /// Fails while sway shows no such window.
    Result<void> focusXWindow(std::uint32_t xWindow);

  private:
    SwayConnection m_connection;
};

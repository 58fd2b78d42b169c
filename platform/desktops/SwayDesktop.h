// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "platform/XWindowFocus.h"
#include "platform/desktops/SwayConnection.h"

/// What sway tells of its windows and keyboards, asked for each time. A sway that has gone knows nothing.
class SwayDesktop final : public XWindowFocus {
  public:
    explicit SwayDesktop(SwayConnection connection) : m_connection(std::move(connection)) {}

    /// The group in force on the keyboard with the most of them, from 0; the virtual ones do not count where
    /// there is another.
    std::uint32_t group();

    // XWindowFocus
    std::optional<std::uint32_t> focusedXWindow() override;
    Result<void> focusXWindow(std::uint32_t xWindow) override;

  private:
    SwayConnection m_connection;
};

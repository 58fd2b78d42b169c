// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "platform/CompositorFocus.h"
#include "platform/desktops/SwayConnection.h"
#include "platform/desktops/SwayCovers.h"

/// What sway tells of its windows and keyboards, asked for each time. A sway that has gone knows nothing.
class SwayDesktop final : public CompositorFocus {
  public:
    explicit SwayDesktop(SwayConnection connection) : m_connection(std::move(connection)) {}

    /// The group in force on the keyboard with the most of them, from 0; the virtual ones do not count where
    /// there is another.
    std::uint32_t group();

    // CompositorFocus
    bool isElsewhere(const OwnWindow& hidden) override;
    Result<void> focus(const OwnWindow& window) override;
    void refuseFocus(const std::string& title) override;

    /// Gives back what focus() has taken.
    EventSource& covers() { return m_covers; }

  private:
    SwayConnection m_connection;
    SwayCovers m_covers{m_connection};
};

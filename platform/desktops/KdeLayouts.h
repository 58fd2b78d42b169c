// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "platform/desktops/SessionBus.h"

/// The keyboard layouts of KDE's user, the groups of the seat's keymap in their order. With a single one
/// there is nobody who tells of them.
class KdeLayouts {
  public:
    /// `bus` outlives this.
    explicit KdeLayouts(const SessionBus& bus) : m_bus(bus) {}

    /// The one in force, from 0; asked for now.
    std::uint32_t group() const;
    /// Puts that one in force, and waits for it. Fails where there is none of that number.
    Result<void> setGroup(std::uint32_t group) const;

  private:
    const SessionBus& m_bus;
};

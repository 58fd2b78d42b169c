// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "platform/desktops/Layouts.h"
#include "platform/desktops/SessionBus.h"

/// Those of KDE. With a single one there is nobody who tells of them.
class KdeLayouts final : public Layouts {
  public:
    /// `bus` outlives this.
    explicit KdeLayouts(const SessionBus& bus) : m_bus(bus) {}

    std::uint32_t group() const override;
    bool canSwitch() const override { return true; }
    Result<void> setGroup(std::uint32_t group) override;

  private:
    const SessionBus& m_bus;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DockingTray.h"

/// Where no icons dock, now or later.
class NoDockingTray final : public DockingTray {
  public:
    bool isPresent() const override { return false; }
    void observe(std::function<void()> /*changed*/) override {}
};

// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

/// The tray that icons dock into as small windows. The other kind of tray, which asks programs for their
/// icons, is found on the session bus.
class DockingTray {
  public:
    virtual ~DockingTray() = default;

    virtual bool isPresent() const = 0;

    /// Who is told when the tray comes or goes; at most one.
    virtual void observe(std::function<void()> changed) = 0;
};

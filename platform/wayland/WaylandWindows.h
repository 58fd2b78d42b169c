// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"
#include "platform/Windows.h"
#include "platform/desktops/SwayDesktop.h"

namespace wayland {

/// The windows of ours that the toolkit shows as X11 windows, where the compositor is sway.
class WaylandWindows final : public Windows {
  public:
    /// `sway` is null elsewhere; both outlive this.
    WaylandWindows(SwayDesktop* sway, Clock& clock) : m_sway(sway), m_clock(clock) {}

    void activate(WindowId window, std::uint32_t userTime) override;
    /// Sway passes the focus on by itself.
    void awaitFocusElsewhere(WindowId hidden) override;

  private:
    SwayDesktop* m_sway;
    Clock& m_clock;
};

}  // namespace wayland

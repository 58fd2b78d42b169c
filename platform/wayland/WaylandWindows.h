// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"
#include "platform/Windows.h"
#include "platform/XWindowFocus.h"

namespace wayland {

/// The windows of ours that the toolkit shows as X11 windows.
class WaylandWindows final : public Windows {
  public:
    /// `compositor` is null where nobody can be asked; both outlive this.
    WaylandWindows(XWindowFocus* compositor, Clock& clock) : m_compositor(compositor), m_clock(clock) {}

    void activate(WindowId window, std::uint32_t userTime) override;
    /// Compositors pass the focus on by themselves; nothing is given back.
    void awaitFocusElsewhere(WindowId hidden) override;

  private:
    XWindowFocus* m_compositor;
    Clock& m_clock;
};

}  // namespace wayland

// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SessionCheck.h"

namespace wayland {

/// What the compositor at $WAYLAND_DISPLAY and the desktop around it offer. What was looked at when the
/// session was entered is so.
class WaylandSessionCheck final : public SessionCheck {
  public:
    Result<> version() const override { return {}; }
    Result<> access() const override { return {}; }
    SessionCapabilities capabilities() const override;
    SessionDetails details() const override;
};

}  // namespace wayland

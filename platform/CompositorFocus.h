// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "platform/Result.h"
#include "platform/Windows.h"

/// Who gives the focus among the windows that a Wayland compositor shows.
class CompositorFocus {
  public:
    virtual ~CompositorFocus() = default;

    /// The number of the X11 window that keys go to, 0 where it is a native one; empty if there is none.
    virtual std::optional<std::uint32_t> focusedXWindow() = 0;
    /// Gives it to a window of ours; fails while the compositor shows no such window.
    virtual Result<void> focus(const OwnWindow& window) = 0;
    /// Has it given to no native window of ours of that title when that appears; nothing where the compositor
    /// cannot be told.
    virtual void refuseFocus(const std::string& /*title*/) {}
};

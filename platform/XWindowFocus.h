// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "platform/Result.h"

/// Who gives the focus among the X11 windows that a Wayland compositor shows too.
class XWindowFocus {
  public:
    virtual ~XWindowFocus() = default;

    /// The number of the X11 window that keys go to, 0 where it is a native one; empty if there is none.
    virtual std::optional<std::uint32_t> focusedXWindow() = 0;
    /// Fails while the compositor shows no such window.
    virtual Result<void> focusXWindow(std::uint32_t xWindow) = 0;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/Result.h"
#include "platform/Windows.h"

/// Who gives the focus among the windows that a Wayland compositor shows.
class CompositorFocus {
  public:
    virtual ~CompositorFocus() = default;

    /// Whether keys go to a window, and to another one than this, which may have been hidden; without number
    /// and title it is none.
    virtual bool isElsewhere(const OwnWindow& hidden) = 0;
    /// Gives it to a window of ours, of several with one title to the last; fails while the
    /// compositor shows no such window. One that fills the screen in front of it does not as long as
    /// the window is there.
    virtual Result<void> focus(const OwnWindow& window) = 0;
    /// Has it given to no native window of ours of that title when that appears; nothing where the compositor
    /// cannot be told.
    virtual void refuseFocus(const std::string& /*title*/) {}
};

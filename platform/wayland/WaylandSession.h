// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CompositorFocus.h"
#include "platform/Session.h"
#include "platform/SessionCheck.h"
#include "platform/Windows.h"

namespace wayland {

/// Whether a compositor answers at $WAYLAND_DISPLAY that lets programs press keys. Nothing is opened where
/// that is not set.
Result<void> checkDisplay();

/// Tells what works at $WAYLAND_DISPLAY.
std::unique_ptr<SessionCheck> examineSession();

/// What has to do with our X11 windows, where the compositor shows such.
struct XWindows {
    /// Gives who is asked for their focus where the compositor has no way of its own; may give null.
    std::unique_ptr<CompositorFocus> (*openFocus)();
    /// Windows::refuseFocus().
    void (*refuseFocus)(WindowId window);
};

/// The session of that compositor. What it cannot do is answered with an error that says so.
Result<std::unique_ptr<Session>> openSession(Clock& clock, SessionUse use, const XWindows& xWindows);

}  // namespace wayland

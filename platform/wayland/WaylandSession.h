// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Session.h"
#include "platform/SessionCheck.h"
#include "platform/XWindowFocus.h"

namespace wayland {

/// Whether a compositor answers at $WAYLAND_DISPLAY that lets programs press keys. Nothing is opened where
/// that is not set.
Result<void> checkDisplay();

/// Tells what works at $WAYLAND_DISPLAY.
std::unique_ptr<SessionCheck> examineSession();

/// The session of that compositor. What it cannot do is answered with an error that says so. `openFocus`
/// gives who is asked for the focus of our X11 windows where the compositor has no way of its own; it may
/// give null.
Result<std::unique_ptr<Session>> openSession(Clock& clock, SessionUse use,
                                             std::unique_ptr<XWindowFocus> (*openFocus)());

}  // namespace wayland

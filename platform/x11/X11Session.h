// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Session.h"
#include "platform/SessionCheck.h"
#include "platform/XWindowFocus.h"

namespace x11 {

/// Whether there is an X server at $DISPLAY to show anything on.
Result<void> checkDisplay();

/// Tells what works at $DISPLAY.
std::unique_ptr<SessionCheck> examineSession();

/// The session of the X server at $DISPLAY. For SessionUse::desktop it needs only that the server shows
/// windows.
Result<std::unique_ptr<Session>> openSession(Clock& clock, SessionUse use);

/// Who gives the focus among the windows of the server at $DISPLAY, for other kinds of session; null where
/// there is none.
std::unique_ptr<XWindowFocus> openWindowFocus();

}  // namespace x11

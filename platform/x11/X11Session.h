// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CompositorFocus.h"
#include "platform/Session.h"
#include "platform/SessionCheck.h"
#include "platform/Windows.h"

namespace x11 {

/// Whether there is an X server at $DISPLAY to show anything on.
Result<void> checkDisplay();

/// Tells what works at $DISPLAY.
std::unique_ptr<SessionCheck> examineSession();

/// The session of the X server at $DISPLAY. For SessionUse::desktop it needs only that the server shows
/// windows; for SessionUse::check what it needs for scripts.
Result<std::unique_ptr<Session>> openSession(Clock& clock, SessionUse use);

/// Who gives the focus among the windows of the server at $DISPLAY, for other kinds of session; null where
/// there is none.
std::unique_ptr<CompositorFocus> openWindowFocus();

/// Has Wayland compositors not give the focus to that window of the server at $DISPLAY when it appears.
///
/// Why: the toolkit says of a window without focus that it takes none, and of all that they want to be told
/// when it is theirs; together that means to compositors that it takes the focus by itself. X11 window
/// managers know better, and some need both.
void refuseFocus(WindowId window);

}  // namespace x11

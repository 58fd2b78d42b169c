// SPDX-License-Identifier: MIT
#pragma once

#include "platform/KeyEvent.h"

/// Listens to the event monitor from now on and registers the hot keys. Whether the desktop lets us listen is
/// checked at start-up, not here.
void installKeyRecorder();

/// A key press or repeat becomes an action of the macro being recorded, with the modifiers of the last
/// modifier change, behind the pause before it where such pauses are kept (EngineState::pauseChoice); a
/// modifier change is noted, and the one to no modifiers starts a play that waits for it. Key releases are
/// nothing. Of modifier keys that are shown (EventMonitor::setShowsModifierKeys) a tap becomes an action like
/// that of any other key, and a hold over several keys one before them and one behind.
void handleKeyEvent(const KeyEvent& event);

/// Adds the time since the start of the recording, the last recorded key or the last saved pause as a pause,
/// in seconds as they were. Nothing before the first recording; ends the process if nothing is recorded.
void saveDelayToNow();

/// The next saved pause is measured from now.
void restartLastEventTime();

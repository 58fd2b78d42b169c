// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/PlayOptions.h"

/// The way to run a script text.
class AppleScript {
  public:
    /// Compiles the text afresh and runs it to its end; an error in it is not told to anybody. Strokes of the
    /// run are recorded like the user's own while a macro is being recorded. Its pauses are divided by the
    /// speed.
    static void runAppleScript(std::string text, double speed = playspeed::usual);
};

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "desktop/Desktop.h"

/// "abc" as it is recorded.
inline constexpr const char* recordedAbc =
    "tell application \"System Events\"\n"
    "\tkey code (0) using {}\ndelay 0.01\n"
    "\tkey code (11) using {}\ndelay 0.01\n"
    "\tkey code (8) using {}\ndelay 0.01\n"
    "end tell\n";

/// Saves the current macro as users do, by the menu of the tray's icon and the panel for files; its script.
/// The focus is back where it was afterwards.
std::string savedMacro(const Desktop& desktop);

/// The number of "key code" lines of a script.
std::size_t keyLines(const std::string& script);

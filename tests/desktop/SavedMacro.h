// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "desktop/Desktop.h"

/// Saves the current macro as users do, by the menu of the tray's icon and the panel for files; its script.
/// The focus is back where it was afterwards.
std::string savedMacro(const Desktop& desktop);

/// The number of "key code" lines of a script.
std::size_t keyLines(const std::string& script);

// SPDX-License-Identifier: MIT
#pragma once

#include <boost/smart_ptr/shared_ptr.hpp>
#include <string>

#include "platform/HotKeys.h"

class Macro;

// What the pictures show is what the program makes: macros are recorded from key events, and a shortcut is
// refused because somebody else holds it.

/// A macro as the recorder makes it of these keys: letters and blanks of a US keyboard, capitals with Shift,
/// Tab and Return; "^c" is Ctrl+C, "@s" is Super+S, "~" a pause of half a second.
boost::shared_ptr<Macro> recordedMacro(const std::string& keys);

/// The state of a hot key for Ctrl+Super+P while another program holds that.
HotKeyState refusedHotKey();

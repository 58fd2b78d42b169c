// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "platform/keymap/Keymap.h"
#include "platform/keymap/Stroke.h"

/// The stroke of a key code with modifiers (platform/KeyCodes.h, platform/Modifiers.h).
///
/// A code without a key plays nothing: its stroke has key code 0. A keypad digit sets Num Lock so that the
/// digit is typed, Caps Lock is locked around the stroke, the function key is ignored. Fails for the power
/// key, and for a modifier or chooser that no key of the keymap holds (see Keymap::real()).
Result<Stroke> planStroke(const Keymap& keymap, std::uint32_t keyCode, std::uint32_t modifiers);

/// The stroke around others, without a key, that the modifiers make; fails as above.
Result<Stroke> planModifiers(const Keymap& keymap, std::uint32_t modifiers);

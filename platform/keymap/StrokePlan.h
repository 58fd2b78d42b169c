// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "platform/keymap/ModifierKeys.h"
#include "platform/keymap/Stroke.h"

/// The stroke of a key code with modifiers (platform/KeyCodes.h, platform/Modifiers.h).
///
/// A code without a key plays nothing: its stroke has key code 0. A keypad digit sets Num Lock so that the
/// digit is typed, Caps Lock is locked around the stroke, the function key is ignored. Fails for the power
/// key, and for a modifier or chooser that no key of the keymap holds; the message names it.
Result<Stroke> planStroke(xkb_keymap* keymap, const ModifierMasks& masks, const ModifierKeys& keys,
                          std::uint32_t keyCode, std::uint32_t modifiers);

/// The X modifier bits of a modifier mask, locks left out; fails as above.
Result<std::uint8_t> planModifiers(const ModifierMasks& masks, const ModifierKeys& keys,
                                   std::uint32_t modifiers);

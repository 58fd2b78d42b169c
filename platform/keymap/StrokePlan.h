// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "platform/keymap/Keymap.h"
#include "platform/keymap/Stroke.h"

/// The stroke of a key code with modifiers (platform/KeyCodes.h, platform/Modifiers.h).
///
/// A code without a key plays nothing: its stroke has key code 0. A keypad digit sets Num Lock so that the
/// digit is typed in the group `layout`, Caps Lock is locked around the stroke, the function key is ignored.
/// Fails for the power key, for a layout that the keymap has not, and for a modifier or chooser that no key
/// of it holds (see Keymap::real()).
Result<Stroke> planStroke(const Keymap& keymap, std::uint32_t keyCode, std::uint32_t modifiers,
                          xkb_layout_index_t layout = 0);

/// The locks that matter for the characters of a text, which must be off for each: all but Num Lock, since no
/// character is typed by a key that depends on that.
xkb_mod_mask_t locksOfText(const Keymap& keymap);

/// The stroke around those of a text, without a key, that the modifiers make; Caps Lock among them is locked,
/// other locks are off. Fails as above.
Result<Stroke> planModifiers(const Keymap& keymap, std::uint32_t modifiers);

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "platform/keymap/Keymap.h"

/// What a key press is reported as.
struct TypedKey {
    std::uint32_t keyCode = 0;
    /// The ASCII character typed, 0 if none.
    char character = 0;
    /// The mask that types the same with that key code when it is played, whatever the locks are then.
    std::uint32_t modifiers = 0;

    friend bool operator==(const TypedKey&, const TypedKey&) = default;
};

/// The report of a press of `keycode` (XKB) while the real modifiers `modifiers` (held, latched and
/// locked) and the group `layout` are in force. `modifierHeld` tells whether a modifier key is down: the mask
/// is not 0 then, and where nothing that has a meaning is left in it, it is modifier::functionKey.
///
/// - With Control, Alt or Super the combination counts, not the letter: Shift is what it is, locks are left
///   out.
/// - Otherwise Shift is added or dropped where Caps Lock turned a letter round; for A to Z Caps Lock itself
///   stands in for the Shift that is added. Where nothing but the lock makes the letter, the lock goes into
///   the code, and into the mask of other letters than A to Z.
/// - A keypad digit that was typed keeps its code, which always means the digit; without Num Lock the key is
///   reported as the navigation key that was typed. The five, for which there is none, keeps its code always.
/// - Level choosers go into the code.
TypedKey shapeKey(const Keymap& keymap, std::uint8_t keycode, xkb_mod_mask_t modifiers,
                  xkb_layout_index_t layout, bool modifierHeld);

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "platform/keymap/Keymap.h"

/// The key of the navigation block that a keypad symbol stands for, as a key code (platform/KeyCodes.h); 0 if
/// it stands for none, as also the five in the middle does.
std::uint32_t navigationCodeOf(xkb_keysym_t symbol);

/// Num Lock, or 0: the state of that lock in which a key of the keypad types its digit while the real
/// modifiers `modifiers` and the group `layout` are in force. Mostly Num Lock; on some layouts it turns
/// digits into arrows.
xkb_mod_mask_t numLockForDigit(const Keymap& keymap, std::uint8_t keycode, xkb_mod_mask_t modifiers,
                               xkb_layout_index_t layout);

// SPDX-License-Identifier: MIT
#pragma once

#include <xkbcommon/xkbcommon.h>

class ModifierKeys;

/// The eight modifiers that keys set and that events carry; virtual modifiers lie on them.
inline constexpr xkb_mod_mask_t realModifiers = 0xFF;

/// The real modifiers that stand for each purpose in a keymap; 0 where none does.
struct ModifierMasks {
    xkb_mod_mask_t shift = 0;
    xkb_mod_mask_t control = 0;
    xkb_mod_mask_t option = 0;   ///< Alt
    xkb_mod_mask_t command = 0;  ///< Super
    xkb_mod_mask_t capsLock = 0;
    xkb_mod_mask_t numLock = 0;
    xkb_mod_mask_t scrollLock = 0;
    xkb_mod_mask_t thirdLevel = 0;
    xkb_mod_mask_t fifthLevel = 0;

    xkb_mod_mask_t locks() const { return capsLock | numLock | scrollLock; }
    /// Control, Alt and Super, as far as they do not choose a level too.
    xkb_mod_mask_t commands() const {
        return (control | option | command) & ~(shift | locks() | thirdLevel | fifthLevel);
    }

    friend bool operator==(const ModifierMasks&, const ModifierMasks&) = default;
};

/// Finds the masks of a keymap, and this is the one rule for it:
///
/// 1. where the keymap's own modifier of that name lies (Shift, Lock, Control; the virtual ones Alt, Super,
///    NumLock, ScrollLock, LevelThree, LevelFive),
/// 2. where it has none, or lies nowhere, what the keys with the symbols of the purpose set, as Alt_L does,
/// 3. for Alt the same with Meta.
///
/// Locks leave out what is Shift, Control, Alt or Super as well: Caps Lock may be made a Shift that locks.
ModifierMasks findModifierMasks(xkb_keymap* keymap, const ModifierKeys& keys);

// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>

#include "prefs/KeyCombo.h"

class QKeyEvent;

/// What a key press means to a shortcut field that is recording.
enum class ShortcutKey {
    modifier,       ///< a modifier or a lock: the combination is not complete
    combination,    ///< one that can be taken
    needsModifier,  ///< it would type something: a modifier other than Shift must be held
    clear,          ///< Backspace
    cancel,         ///< Escape
    leave,          ///< Tab
    unknown,        ///< not a key of the keyboard
};

ShortcutKey shortcutKey(const QKeyEvent& press);

/// The key and the modifiers of a press, by the key's position: X key codes are evdev codes + 8. The code is
/// -1 for a press that no key has made.
KeyCombo keyComboOf(const QKeyEvent& press);

/// In `controlflag` bits.
std::uint32_t controlFlagsOf(Qt::KeyboardModifiers modifiers);
/// The modifier that a modifier key itself is, as if it were the mask of the moment after its press.
Qt::KeyboardModifiers modifiersAfter(const QKeyEvent& event);

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// The kinds of keyboard event that a monitor delivers.
enum class KeyEventKind : std::uint32_t { keyDown = 1, autoRepeat = 2, keyUp = 3, modifiersChanged = 4 };

/// One keyboard event of the whole desktop.
struct KeyEvent {
    KeyEventKind kind = KeyEventKind::keyDown;
    /// See platform/KeyCodes.h; 0 in a modifier change.
    std::uint32_t keyCode = 0;
    /// The ASCII character that the press produced with the group, Shift, Caps Lock and AltGr of that moment;
    /// 0 if none. Control, Alt and Super do not change it.
    char character = 0;
    /// The mask in force after the event (platform/Modifiers.h).
    std::uint32_t modifiers = 0;

    friend bool operator==(const KeyEvent&, const KeyEvent&) = default;
};

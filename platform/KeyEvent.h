// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// The kinds of keyboard event that a monitor delivers.
enum class KeyEventKind : std::uint32_t {
    keyDown = 1,
    autoRepeat = 2,
    keyUp = 3,
    modifiersChanged = 4,
    // Only where they are asked for (EventMonitor::setShowsModifierKeys).
    modifierKeyDown = 16,
    modifierKeyUp = 17,
};

/// One keyboard event of the whole desktop.
struct KeyEvent {
    KeyEventKind kind = KeyEventKind::keyDown;
    /// See platform/KeyCodes.h; 0 in a modifier change.
    std::uint32_t keyCode = 0;
    /// The ASCII character that the press produced with the group, Shift, Caps Lock and AltGr of that moment;
    /// 0 if none. Control, Alt and Super do not change it.
    char character = 0;
    /// The mask in force after the event (platform/Modifiers.h); of a modifier key the modifiers that it
    /// holds.
    std::uint32_t modifiers = 0;
    /// When it happened, in milliseconds by a clock of the desktop's own that wraps around after 49 days:
    /// only the time from one event to another means anything.
    std::uint32_t time = 0;

    /// Whether they say the same of the keyboard, whenever that was.
    friend bool operator==(const KeyEvent& a, const KeyEvent& b) {
        return a.kind == b.kind && a.keyCode == b.keyCode && a.character == b.character &&
               a.modifiers == b.modifiers;
    }
};

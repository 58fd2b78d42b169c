// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <variant>

#include "platform/keymap/KeyboardState.h"

/// Milliseconds of the desktop's server; they wrap around after 49 days.
using ServerTime = std::uint32_t;

/// How much later `time` is than `other`, negative if earlier.
inline std::int32_t millisecondsAfter(ServerTime time, ServerTime other) {
    return static_cast<std::int32_t>(time - other);
}

/// A key of one keyboard went down or up. The server sends each one, also those that change nothing.
struct RawKey {
    std::uint8_t keycode = 0;
    bool press = false;
    /// The device that the key belongs to.
    std::uint16_t source = 0;
    /// Whether a program pressed it, and no hand at a keyboard.
    bool synthetic = false;
    ServerTime time = 0;

    friend bool operator==(const RawKey&, const RawKey&) = default;
};

/// The modifiers or the group changed, because of a key or, with keycode 0, of a request.
struct StateChange {
    XkbComponents components;
    std::uint8_t keycode = 0;
    bool press = false;
};

/// The keymap may have changed.
struct KeymapTouched {};

/// A keyboard is gone and what was held on it is up.
struct KeyboardGone {
    std::uint16_t source = 0;
};

/// How long a key is held before the server repeats it.
struct RepeatDelay {
    std::int32_t milliseconds = 0;
};

/// The followed window has taken the keyboard to itself or has let go of it.
struct WindowHold {
    bool holds = false;
};

using MonitorEvent = std::variant<RawKey, StateChange, KeymapTouched, KeyboardGone, RepeatDelay, WindowHold>;

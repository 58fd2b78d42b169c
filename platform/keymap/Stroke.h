// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// One key and what surrounds it, in the terms of X: what is put down or locked before it is up or back after
/// it.
struct Stroke {
    /// X key code; 0 plays nothing.
    std::uint8_t keycode = 0;
    /// X modifier bits whose keys are held around it.
    std::uint8_t modifiers = 0;
    /// Locks that matter for it, and which of them must be on.
    std::uint8_t lockMask = 0;
    std::uint8_t lockValues = 0;
    /// The group that must be locked for it, 0 to 3; -1 where any group will do.
    std::int8_t group = -1;

    friend bool operator==(const Stroke&, const Stroke&) = default;
};

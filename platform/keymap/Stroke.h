// SPDX-License-Identifier: MIT
#pragma once

#include <xkbcommon/xkbcommon.h>

#include <cstdint>

/// One key and what surrounds it, in the terms of XKB: what is put down or locked before it is up or back
/// after it.
struct Stroke {
    /// XKB key code; 0 plays nothing.
    std::uint8_t keycode = 0;
    /// Real modifiers whose keys are held around it.
    xkb_mod_mask_t modifiers = 0;
    /// Locks that matter for it, and which of them must be on.
    xkb_mod_mask_t lockMask = 0;
    xkb_mod_mask_t lockValues = 0;
    /// The group that must be locked for it, 0 to 3; -1 where any group will do.
    std::int8_t group = -1;

    friend bool operator==(const Stroke&, const Stroke&) = default;
};

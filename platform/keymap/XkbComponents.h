// SPDX-License-Identifier: MIT
#pragma once

#include <xkbcommon/xkbcommon.h>

/// The parts that make up the modifiers and the group of a keyboard (X Keyboard Extension, "Keyboard State").
struct XkbComponents {
    xkb_mod_mask_t depressed = 0;
    xkb_mod_mask_t latched = 0;
    xkb_mod_mask_t locked = 0;
    xkb_layout_index_t baseLayout = 0;
    xkb_layout_index_t latchedLayout = 0;
    xkb_layout_index_t lockedLayout = 0;

    /// Whether held or latched keys choose another group than the locked one.
    bool movesLayout() const { return baseLayout != 0 || latchedLayout != 0; }

    friend bool operator==(const XkbComponents&, const XkbComponents&) = default;
};

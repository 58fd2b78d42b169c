// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "platform/keymap/Keymap.h"
#include "platform/keymap/Stroke.h"

/// The keys that are pressed before a stroke's own, in order, for those of its modifiers that are not `down`
/// yet. A modifier that the stroke's own key would hold is held by another key; by none where there is none.
std::vector<std::uint8_t> keysAround(const ModifierKeys& keys, const Stroke& stroke, xkb_mod_mask_t down);

/// The layout that is locked once the stroke has been pressed, where `layout` was locked before: keys that
/// switch layouts are strokes like others, also those that do so with a modifier held. What the modifiers of
/// the stroke switch does not count: the sender undoes it.
xkb_layout_index_t layoutAfter(const Keymap& keymap, const Stroke& stroke, xkb_layout_index_t layout);

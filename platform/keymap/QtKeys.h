// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "platform/keymap/Keymap.h"

/// A combination as Qt and the desktops made of it number it (Qt::Key with Qt::KeyboardModifiers), in each
/// layout of the keymap: they know a combination by what the key types.
///
/// `modifiers` are real ones. In the order of the layouts, without duplicates; empty where Qt has no number
/// for the key. What Shift has chosen a sign for is that sign: Ctrl+Shift+1 is Ctrl+!; a letter keeps its
/// Shift.
std::vector<std::int32_t> qtCombinations(const Keymap& keymap, std::uint8_t keycode,
                                         xkb_mod_mask_t modifiers);

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "platform/keymap/Keymap.h"

/// The short readable name of a key (platform/KeyCodes.h) in a keymap and group, UTF-8, never empty: what it
/// types without Shift in upper case, or a symbol or name.
std::string keyLabel(const Keymap& keymap, xkb_layout_index_t inForce, std::uint32_t keyCode);

/// What the key types with these real modifiers, capitalised, UTF-8; empty if nothing that can be printed.
std::string keyText(const Keymap& keymap, xkb_layout_index_t layout, std::uint32_t keyCode,
                    xkb_mod_mask_t modifiers);

/// What a press of the key types by itself or with Shift, with what the code names of choosers, lock and
/// layout, as it stands, UTF-8; empty if that is no character that can be seen and no blank.
std::string typedText(const Keymap& keymap, xkb_layout_index_t inForce, std::uint32_t keyCode, bool shift);

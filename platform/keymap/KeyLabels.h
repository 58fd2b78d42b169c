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

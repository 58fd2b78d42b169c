// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/keymap/Keymap.h"

/// What a key types without modifiers in the first layout, as xkbcommon calls it: "r", "F9"; empty for
/// nothing.
std::string symbolName(const Keymap& keymap, std::uint8_t keycode);

/// A combination as the shortcuts standard of freedesktop.org writes it: "CTRL+LOGO+r". Empty where it
/// has no name, as those with a level chooser have none.
std::string portalTrigger(const Keymap& keymap, std::uint8_t keycode, xkb_mod_mask_t modifiers);

/// A combination as GTK writes accelerators, by what its key types without modifiers in that layout:
/// "<Control><Super>r". Empty where it has no name, as those with a level chooser have none.
std::string gtkAccelerator(const Keymap& keymap, xkb_layout_index_t layout, std::uint8_t keycode,
                           xkb_mod_mask_t modifiers);

/// Whether two of GTK's accelerators are the same combination, however their modifiers are ordered and called
/// ("<Primary>", "<Ctrl>"). One without a key is none.
bool isSameAccelerator(const std::string& one, const std::string& other);

/// A key with real modifiers.
struct KeyCombination {
    std::uint8_t keycode = 0;
    xkb_mod_mask_t modifiers = 0;

    friend bool operator==(const KeyCombination&, const KeyCombination&) = default;
};

/// What a desktop means by its words for a combination: those of GTK ("Press <Control><Super>r") and of Qt
/// ("Meta+Ctrl+R"). Empty where they are neither, or name several.
std::optional<KeyCombination> meaningOfTrigger(const Keymap& keymap, const std::string& words);

// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <unordered_map>
#include <vector>

#include "platform/XkbCodes.h"
#include "platform/keymap/Keymap.h"
#include "platform/keymap/Stroke.h"

/// Where a keymap's layouts type each character.
///
/// Of several keys the one of an ordinary keyboard's position comes first, then the one with fewer modifiers,
/// then the lower key code. Keys whose character depends on Num Lock are left out, and levels that need more
/// than Shift and the level choosers.
class CharacterTable {
  public:
    /// `excluded` are keys to leave out, whatever they type now.
    explicit CharacterTable(const Keymap& keymap, const KeycodeSet& excluded = {});

    /// The stroke that types the character in this group, or in the first other group that can; its group is
    /// set in both cases. Line feed is Return.
    std::optional<Stroke> find(char32_t character, xkb_layout_index_t group) const;

  private:
    using Layout = std::unordered_map<char32_t, Stroke>;

    std::vector<Layout> m_layouts;
};

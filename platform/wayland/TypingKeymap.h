// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/keymap/Keymap.h"
#include "platform/press/SpareSlots.h"

namespace wayland {

/// The keymap of a keyboard of ours: the seat's, with characters on the keys that it leaves unused. A spare
/// slot's level is a group here, so that no modifier has to be held for it.
class TypingKeymap {
  public:
    /// The groups of each unused key that a character may lie in.
    static constexpr std::uint8_t groups = 4;

    /// `text` is the seat's keymap as xkbcommon writes it, of which `keymap` is made.
    TypingKeymap(std::string text, const Keymap& keymap);

    /// Those without a meaning in any layout, ascending.
    std::vector<std::uint8_t> spareKeys() const;

    /// With these characters on those keys.
    std::string with(const std::vector<SpareBinding>& bindings) const;

    /// Whether a keymap that the compositor tells is one of with().
    static bool isOurs(std::string_view text);

  private:
    struct SpareKey {
        std::uint8_t keycode = 0;
        std::string name;
    };

    std::string m_text;
    std::vector<SpareKey> m_spareKeys;
};

}  // namespace wayland

// SPDX-License-Identifier: MIT
#pragma once

#include <xkbcommon/xkbcommon.h>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "platform/keymap/XkbPointers.h"

/// The real modifiers (X modifier bits) that the keys of each kind set in a keymap; 0 where it has no such
/// key.
struct ModifierMasks {
    xkb_mod_mask_t shift = 0;
    xkb_mod_mask_t control = 0;
    xkb_mod_mask_t option = 0;   ///< Alt
    xkb_mod_mask_t command = 0;  ///< Super
    xkb_mod_mask_t capsLock = 0;
    xkb_mod_mask_t numLock = 0;
    xkb_mod_mask_t scrollLock = 0;
    xkb_mod_mask_t thirdLevel = 0;
    xkb_mod_mask_t fifthLevel = 0;

    xkb_mod_mask_t locks() const { return capsLock | numLock | scrollLock; }
};

/// A compiled keymap and what its keys do to the modifiers.
///
/// Why by trying: virtual modifiers may lie on any real ones and any key may set them; pressing each key on a
/// state of its own shows it, whatever the rules and options of the layout are.
class Keymap {
  public:
    explicit Keymap(XkbKeymapPointer keymap);

    xkb_keymap* get() const { return m_keymap.get(); }
    const ModifierMasks& masks() const { return m_masks; }

    /// The real modifiers that the key sets when it is pressed with nothing else down, locks included.
    xkb_mod_mask_t keyModifiers(std::uint8_t keycode, xkb_layout_index_t layout) const;
    /// True for modifier, lock and level-chooser keys; keys that switch the group are ordinary ones.
    bool isModifierKey(std::uint8_t keycode, xkb_layout_index_t layout) const;

    /// What the key types with these real modifiers in this layout (group); XKB_KEY_NoSymbol if nothing.
    xkb_keysym_t symbol(std::uint8_t keycode, xkb_mod_mask_t modifiers, xkb_layout_index_t layout) const;

    /// Real modifiers as platform/Modifiers.h has them, without locks.
    std::uint32_t reported(xkb_mod_mask_t modifiers) const;
    /// The real modifiers of a mask of platform/Modifiers.h, without locks; empty if the keymap lacks one.
    std::optional<xkb_mod_mask_t> real(std::uint32_t reported) const;

    /// Equal for keymaps of equal content.
    std::size_t fingerprint() const { return m_fingerprint; }

  private:
    struct KeyEffect {
        xkb_mod_mask_t modifiers = 0;
        bool isModifierKey = false;
    };
    using LayoutEffects = std::array<KeyEffect, 256>;

    void tryKey(std::uint8_t keycode, xkb_layout_index_t layout);
    void noteRole(xkb_keysym_t symbol, xkb_mod_mask_t modifiers);
    const KeyEffect& effect(std::uint8_t keycode, xkb_layout_index_t layout) const;

    XkbKeymapPointer m_keymap;
    XkbStatePointer m_scratch;
    ModifierMasks m_masks;
    xkb_mod_mask_t m_meta = 0;
    std::vector<LayoutEffects> m_effects;
    std::size_t m_fingerprint = 0;
};

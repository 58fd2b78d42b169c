// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/Result.h"
#include "platform/keymap/ModifierKeys.h"
#include "platform/keymap/ModifierMasks.h"
#include "platform/keymap/XkbPointers.h"

/// What is held while another key is struck.
enum class HeldRole { command, control, option, shift, thirdLevel, fifthLevel };

/// One of the modifiers as people call it: "Super".
std::string modifierName(HeldRole held);

/// A compiled keymap and what its keys do: the one account of it, for those who watch keys and for those who
/// press them, so that both mean the same by Alt.
///
/// It does not change; a new keymap is a new object. Real modifiers are those of ModifierMasks.h, a layout is
/// a group. Lives on one thread.
class Keymap {
  public:
    explicit Keymap(XkbKeymapPointer keymap);

    xkb_keymap* get() const { return m_keymap.get(); }
    const ModifierMasks& masks() const { return m_masks; }
    const ModifierKeys& keys() const { return m_keys; }

    /// The key of a key code (platform/KeyCodes.h), choosers put aside; 0 where the keymap has no such key.
    std::uint8_t keycodeFor(std::uint32_t keyCode) const;

    /// What the key types with these real modifiers in this layout; XKB_KEY_NoSymbol if nothing.
    xkb_keysym_t symbol(std::uint8_t keycode, xkb_mod_mask_t modifiers, xkb_layout_index_t layout) const;

    /// Real modifiers as platform/Modifiers.h has them, without locks.
    std::uint32_t reported(xkb_mod_mask_t modifiers) const;
    /// The level choosers among real modifiers as a key code has them, and back.
    std::uint32_t reportedChoosers(xkb_mod_mask_t modifiers) const;
    xkb_mod_mask_t realChoosers(std::uint32_t keyCode) const;
    /// The real modifiers of a mask of platform/Modifiers.h, without locks, and of the choosers of a key
    /// code. Fails where no key of the keymap holds one of them; the message names it.
    Result<xkb_mod_mask_t> real(std::uint32_t modifiers, std::uint32_t keyCode = 0) const;
    /// The first of them that no key holds; empty where real() does not fail.
    std::optional<HeldRole> heldByNoKey(std::uint32_t modifiers, std::uint32_t keyCode) const;

    /// Equal for keymaps of equal content. Costs more than all else here, so it is made when it is asked for.
    std::size_t fingerprint() const;

  private:
    XkbKeymapPointer m_keymap;
    ModifierKeys m_keys;
    ModifierMasks m_masks;
    XkbStatePointer m_scratch;
    mutable std::optional<std::size_t> m_fingerprint;
};

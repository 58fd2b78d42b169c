// SPDX-License-Identifier: MIT
#pragma once

#include <xkbcommon/xkbcommon.h>

#include <array>
#include <cstdint>
#include <vector>

#include "platform/XkbCodes.h"

/// What each key of a keymap does to the modifiers (real ones, see ModifierMasks.h).
///
/// Why by trying: virtual modifiers may lie on any real ones and any key may set them; pressing each key on a
/// state of its own shows it, whatever the rules and options of the layout are.
class ModifierKeys {
  public:
    explicit ModifierKeys(xkb_keymap* keymap);

    /// The modifiers that the key sets in a layout when it is pressed with nothing else down, locks included.
    xkb_mod_mask_t setBy(std::uint8_t keycode, xkb_layout_index_t layout) const;
    /// True for modifier, lock and level-chooser keys, and those that choose a layout while they are held or
    /// for the next key; keys that switch the layout for good are ordinary ones.
    bool isModifierKey(std::uint8_t keycode, xkb_layout_index_t layout) const;

    /// The key that holds exactly this one modifier in every layout, the usual position of a keyboard first;
    /// 0 if there is none. `except` is never the answer.
    std::uint8_t keyFor(xkb_mod_mask_t modifier, std::uint8_t except = 0) const;
    /// Whether each modifier of `mask`, which must not be 0, has such a key.
    bool canHold(xkb_mod_mask_t mask) const;

    /// The modifiers that the key holds while it is down, of all layouts together.
    xkb_mod_mask_t heldBy(std::uint8_t keycode) const { return m_held[keycode]; }
    /// The same of several keys together.
    xkb_mod_mask_t heldBy(const KeycodeSet& keycodes) const;
    /// Those of some keys that hold any of these modifiers.
    KeycodeSet holdersOf(xkb_mod_mask_t modifiers, const KeycodeSet& among) const;

    /// Whether there is more than one layout, so that modifiers that are held together may switch it.
    bool haveLayouts() const { return m_effects.size() > 1; }

    /// The modifiers that any key locks, in whichever layout and on whichever level.
    xkb_mod_mask_t lockable() const { return m_lockable; }

    /// Whether a stroke of the key leaves a lock or a latch behind.
    bool isLock(std::uint8_t keycode) const { return m_locks[keycode]; }

  private:
    struct Effect {
        xkb_mod_mask_t set = 0;
        bool isModifierKey = false;
    };
    using LayoutEffects = std::array<Effect, 256>;

    void tryKey(xkb_keymap* keymap, std::uint8_t keycode, xkb_layout_index_t layout);
    void tryLevels(xkb_keymap* keymap, std::uint8_t keycode, xkb_layout_index_t layout);
    const Effect& effect(std::uint8_t keycode, xkb_layout_index_t layout) const;

    std::vector<LayoutEffects> m_effects;
    std::array<xkb_mod_mask_t, 256> m_held{};
    /// The modifiers held, where they are the same in all layouts and nothing is left of them afterwards.
    std::array<xkb_mod_mask_t, 256> m_momentary{};
    KeycodeSet m_locks;
    xkb_mod_mask_t m_lockable = 0;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "platform/keymap/CharacterTable.h"
#include "platform/keymap/StrokePlan.h"
#include "platform/keymap/XkbPointers.h"

/// What the injector knows of a keymap; it does not change. A new keymap is a new object.
class InjectorKeymap {
  public:
    /// `excluded` are the keys that characters are put on; what they type now does not count.
    InjectorKeymap(XkbKeymapPointer keymap, const ModifierMasks& masks, const KeycodeSet& excluded)
        : m_keymap(std::move(keymap)),
          m_masks(masks),
          m_keys(m_keymap.get()),
          m_characters(m_keymap.get(), m_masks, m_keys, excluded) {}

    const ModifierMasks& masks() const { return m_masks; }
    const ModifierKeys& keys() const { return m_keys; }
    const CharacterTable& characters() const { return m_characters; }

    /// See platform/keymap/StrokePlan.h.
    Result<Stroke> stroke(std::uint32_t keyCode, std::uint32_t modifiers) const {
        return planStroke(m_keymap.get(), m_masks, m_keys, keyCode, modifiers);
    }
    Result<std::uint8_t> modifiers(std::uint32_t modifiers) const {
        return planModifiers(m_masks, m_keys, modifiers);
    }

  private:
    XkbKeymapPointer m_keymap;
    ModifierMasks m_masks;
    ModifierKeys m_keys;
    CharacterTable m_characters;
};

// SPDX-License-Identifier: MIT
#include "platform/keymap/MaskShaper.h"

#include <optional>

#include "platform/KeyCodes.h"
#include "platform/Modifiers.h"
#include "platform/XkbCodes.h"
#include "platform/keymap/KeypadDigit.h"

namespace {

bool typesTheSame(xkb_keysym_t one, xkb_keysym_t other) {
    if (one == other) return true;
    const std::uint32_t character = xkb_keysym_to_utf32(one);
    return character != 0 && character == xkb_keysym_to_utf32(other);
}

char asciiOf(xkb_keysym_t symbol) {
    const std::uint32_t character = xkb_keysym_to_utf32(symbol);
    return character < 0x80 ? static_cast<char>(character) : '\0';
}

bool isUpperCase(char character) { return character >= 'A' && character <= 'Z'; }

/// One press, looked at from all sides.
class Shaper {
  public:
    Shaper(const Keymap& keymap, std::uint8_t keycode, xkb_mod_mask_t modifiers, xkb_layout_index_t layout)
        : m_keymap(keymap),
          m_masks(keymap.masks()),
          m_keycode(keycode),
          m_layout(layout),
          m_modifiers(modifiers),
          m_baseCode(keycode::fromEvdev(xkbcode::toEvdev(keycode))),
          m_typed(symbol(modifiers & ~commandMask())) {}

    TypedKey result(bool modifierHeld) const {
        const bool keypad = keycode::isKeypadDigit(m_baseCode);
        const xkb_mod_mask_t lock = keypad ? digitLock() : 0;
        const bool digit = keypad && typesTheSame(symbol(unlocked() | lock), m_typed);
        TypedKey key{.keyCode = m_keymap.reportedChoosers(m_modifiers) |
                                (keypad && !digit ? navigationCode() : m_baseCode),
                     .character = asciiOf(m_typed),
                     .modifiers = m_keymap.reported(m_modifiers & commandMask())};
        const bool keepsShift = keypad ? !digit : key.modifiers != 0;
        key.modifiers |= keepsShift ? heldShift() : shapeBits(lock, key.character);
        // The text of a macro has no word for the lock, only the Shift that types the same.
        if ((key.modifiers & modifier::capsLock) != 0 && !shiftThatTypesTheSame(lock)) {
            key.keyCode |= keycode::capsLock;
            // With one of A to Z the mask would be that Shift.
            if (isUpperCase(key.character)) key.modifiers &= ~modifier::capsLock;
        }
        if (key.modifiers == 0 && modifierHeld) key.modifiers = modifier::functionKey;
        return key;
    }

  private:
    xkb_mod_mask_t commandMask() const { return m_masks.commands(); }
    bool shiftHeld() const { return (m_modifiers & m_masks.shift) != 0; }

    xkb_keysym_t symbol(xkb_mod_mask_t modifiers) const {
        return m_keymap.symbol(m_keycode, modifiers, m_layout);
    }

    /// The level choosers that are in force.
    xkb_mod_mask_t unlocked() const {
        return m_modifiers & ~(commandMask() | m_masks.locks() | m_masks.shift);
    }

    /// The Num Lock with which the digit is played.
    xkb_mod_mask_t digitLock() const { return numLockForDigit(m_keymap, m_keycode, unlocked(), m_layout); }

    bool types(bool shift, xkb_mod_mask_t locks) const {
        return typesTheSame(symbol(unlocked() | locks | (shift ? m_masks.shift : 0)), m_typed);
    }

    std::optional<bool> shiftThatTypesTheSame(xkb_mod_mask_t locks) const {
        if (types(shiftHeld(), locks)) return shiftHeld();
        if (types(!shiftHeld(), locks)) return !shiftHeld();
        return std::nullopt;
    }

    /// Shift and Caps Lock, as the character needs them.
    std::uint32_t shapeBits(xkb_mod_mask_t locks, char character) const {
        const std::optional<bool> shift = shiftThatTypesTheSame(locks);
        if (!shift) return heldShift() | (isMadeByCapsLock(locks) ? modifier::capsLock : 0);
        if (!*shift) return 0;
        const bool byCapsLock = !shiftHeld() && isUpperCase(character);
        return byCapsLock ? modifier::capsLock : modifier::shift;
    }

    bool isMadeByCapsLock(xkb_mod_mask_t locks) const {
        return (m_modifiers & m_masks.capsLock) != 0 && types(shiftHeld(), locks | m_masks.capsLock);
    }

    std::uint32_t heldShift() const { return shiftHeld() ? modifier::shift : 0; }

    std::uint32_t navigationCode() const {
        const std::uint32_t code = navigationCodeOf(m_typed);
        // The five in the middle has none.
        return code == 0 ? m_baseCode : code;
    }

    const Keymap& m_keymap;
    const ModifierMasks& m_masks;
    std::uint8_t m_keycode;
    xkb_layout_index_t m_layout;
    xkb_mod_mask_t m_modifiers;
    std::uint32_t m_baseCode;
    xkb_keysym_t m_typed;
};

}  // namespace

TypedKey shapeKey(const Keymap& keymap, std::uint8_t keycode, xkb_mod_mask_t modifiers,
                  xkb_layout_index_t layout, bool modifierHeld) {
    return Shaper(keymap, keycode, modifiers, layout).result(modifierHeld);
}

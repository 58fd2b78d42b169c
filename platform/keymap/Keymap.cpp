// SPDX-License-Identifier: MIT
#include "platform/keymap/Keymap.h"

#include <array>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/KeyCodes.h"
#include "platform/Modifiers.h"
#include "platform/Sentence.h"
#include "platform/XkbCodes.h"

namespace {

/// A bit of ours, and the modifiers that stand for it.
struct Role {
    std::uint32_t flag;
    xkb_mod_mask_t ModifierMasks::*mask;
    HeldRole held;
};
constexpr std::array<Role, 4> modifierRoles = {
    {{modifier::command, &ModifierMasks::command, HeldRole::command},
     {modifier::control, &ModifierMasks::control, HeldRole::control},
     {modifier::option, &ModifierMasks::option, HeldRole::option},
     {modifier::shift, &ModifierMasks::shift, HeldRole::shift}}};
constexpr std::array<Role, 2> chooserRoles = {
    {{keycode::thirdLevel, &ModifierMasks::thirdLevel, HeldRole::thirdLevel},
     {keycode::fifthLevel, &ModifierMasks::fifthLevel, HeldRole::fifthLevel}}};

std::size_t fingerprintOf(xkb_keymap* keymap) {
    struct Free {
        void operator()(char* text) const { std::free(text); }
    };
    const std::unique_ptr<char, Free> text(xkb_keymap_get_as_string(keymap, XKB_KEYMAP_FORMAT_TEXT_V1));
    return text ? std::hash<std::string_view>{}(text.get()) : 0;
}

template <typename Roles>
std::uint32_t flagsOf(const Roles& roles, const ModifierMasks& masks, xkb_mod_mask_t modifiers) {
    std::uint32_t flags = 0;
    for (const Role& role : roles) {
        if ((modifiers & masks.*role.mask) != 0) flags |= role.flag;
    }
    return flags;
}

template <typename Roles>
xkb_mod_mask_t masksOf(const Roles& roles, const ModifierMasks& masks, std::uint32_t flags) {
    xkb_mod_mask_t modifiers = 0;
    for (const Role& role : roles) {
        if ((flags & role.flag) != 0) modifiers |= masks.*role.mask;
    }
    return modifiers;
}

/// The first of the flags that no key holds.
template <typename Roles>
std::optional<HeldRole> missing(const Roles& roles, const Keymap& keymap, std::uint32_t flags) {
    for (const Role& role : roles) {
        if ((flags & role.flag) != 0 && !keymap.keys().canHold(keymap.masks().*role.mask)) return role.held;
    }
    return std::nullopt;
}

Sentence noKeyFor(HeldRole held) {
    if (held == HeldRole::thirdLevel)
        return sentence("Layouts", "The keyboard layout has no key for the third level (AltGr).");
    if (held == HeldRole::fifthLevel)
        return sentence("Layouts", "The keyboard layout has no key for the fifth level.");
    //: %1 is a modifier: Super
    return sentence("Layouts", "The keyboard layout has no key for %1.").arg(modifierName(held));
}

}  // namespace

// The words that combinations have, but for Control, which they abbreviate.
std::string modifierName(HeldRole held) {
    if (held == HeldRole::command) return sentence("CombinationText", "Super");
    if (held == HeldRole::option) return sentence("CombinationText", "Alt");
    if (held == HeldRole::shift) return sentence("CombinationText", "Shift");
    return sentence("CombinationText", "Control");
}

Keymap::Keymap(XkbKeymapPointer keymap)
    : m_keymap(std::move(keymap)),
      m_keys(get()),
      m_masks(findModifierMasks(get(), m_keys)),
      m_scratch(xkb_state_new(get())) {}

std::size_t Keymap::fingerprint() const {
    if (!m_fingerprint) m_fingerprint = fingerprintOf(get());
    return *m_fingerprint;
}

std::uint8_t Keymap::keycodeFor(std::uint32_t keyCode) const {
    const auto evdev = keycode::evdevFor(keyCode);
    if (!evdev) return 0;
    const std::uint8_t keycode = xkbcode::fromEvdev(*evdev);
    if (keycode < xkb_keymap_min_keycode(get()) || keycode > xkb_keymap_max_keycode(get())) return 0;
    return keycode;
}

xkb_keysym_t Keymap::symbol(std::uint8_t keycode, xkb_mod_mask_t modifiers, xkb_layout_index_t layout) const {
    xkb_state_update_mask(m_scratch.get(), modifiers, 0, 0, 0, 0, layout);
    return xkb_state_key_get_one_sym(m_scratch.get(), keycode);
}

std::uint32_t Keymap::reported(xkb_mod_mask_t modifiers) const {
    return flagsOf(modifierRoles, m_masks, modifiers);
}

std::uint32_t Keymap::reportedChoosers(xkb_mod_mask_t modifiers) const {
    return flagsOf(chooserRoles, m_masks, modifiers);
}

xkb_mod_mask_t Keymap::realChoosers(std::uint32_t keyCode) const {
    return masksOf(chooserRoles, m_masks, keyCode);
}

Result<xkb_mod_mask_t> Keymap::real(std::uint32_t modifiers, std::uint32_t keyCode) const {
    if (const auto held = heldByNoKey(modifiers, keyCode))
        return Error{noKeyFor(*held), sentence("Layouts", "Choose a keyboard layout that has one.")};
    return masksOf(modifierRoles, m_masks, modifiers) | realChoosers(keyCode);
}

std::optional<HeldRole> Keymap::heldByNoKey(std::uint32_t modifiers, std::uint32_t keyCode) const {
    const auto held = missing(modifierRoles, *this, modifiers);
    return held ? held : missing(chooserRoles, *this, keyCode);
}

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
#include "platform/XkbCodes.h"

namespace {

/// A bit of ours, the modifiers that stand for it, and what it is called where no key holds it.
struct Role {
    std::uint32_t flag;
    xkb_mod_mask_t ModifierMasks::*mask;
    const char* name;
};
constexpr std::array<Role, 4> modifierRoles = {{{modifier::command, &ModifierMasks::command, "Super"},
                                                {modifier::control, &ModifierMasks::control, "Control"},
                                                {modifier::option, &ModifierMasks::option, "Alt"},
                                                {modifier::shift, &ModifierMasks::shift, "Shift"}}};
constexpr std::array<Role, 2> chooserRoles = {
    {{keycode::thirdLevel, &ModifierMasks::thirdLevel, "the third level (AltGr)"},
     {keycode::fifthLevel, &ModifierMasks::fifthLevel, "the fifth level"}}};

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

/// What the first of the flags that no key holds is called; null if all are held.
template <typename Roles>
const char* missing(const Roles& roles, const Keymap& keymap, std::uint32_t flags) {
    for (const Role& role : roles) {
        if ((flags & role.flag) != 0 && !keymap.keys().canHold(keymap.masks().*role.mask)) return role.name;
    }
    return nullptr;
}

}  // namespace

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
    const char* name = missing(modifierRoles, *this, modifiers);
    if (name == nullptr) name = missing(chooserRoles, *this, keyCode);
    if (name != nullptr) {
        return Error{std::string("The keyboard layout has no key for ") + name + ".",
                     "Choose a keyboard layout that has one."};
    }
    return masksOf(modifierRoles, m_masks, modifiers) | realChoosers(keyCode);
}

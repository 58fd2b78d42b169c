// SPDX-License-Identifier: MIT
#include "platform/keymap/Keymap.h"

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <string_view>

#include "platform/Modifiers.h"

namespace {

constexpr xkb_mod_mask_t realModifiers = 0xFF;
constexpr auto allModifiers = static_cast<xkb_state_component>(
    XKB_STATE_MODS_DEPRESSED | XKB_STATE_MODS_LATCHED | XKB_STATE_MODS_LOCKED);

/// What a key is for, by what it is called in the keymap.
struct Role {
    xkb_keysym_t symbol;
    xkb_mod_mask_t ModifierMasks::*mask;
};
constexpr std::array<Role, 17> roles = {{{XKB_KEY_Shift_L, &ModifierMasks::shift},
                                         {XKB_KEY_Shift_R, &ModifierMasks::shift},
                                         {XKB_KEY_Control_L, &ModifierMasks::control},
                                         {XKB_KEY_Control_R, &ModifierMasks::control},
                                         {XKB_KEY_Alt_L, &ModifierMasks::option},
                                         {XKB_KEY_Alt_R, &ModifierMasks::option},
                                         {XKB_KEY_Super_L, &ModifierMasks::command},
                                         {XKB_KEY_Super_R, &ModifierMasks::command},
                                         {XKB_KEY_Caps_Lock, &ModifierMasks::capsLock},
                                         {XKB_KEY_Num_Lock, &ModifierMasks::numLock},
                                         {XKB_KEY_Scroll_Lock, &ModifierMasks::scrollLock},
                                         {XKB_KEY_ISO_Level3_Shift, &ModifierMasks::thirdLevel},
                                         {XKB_KEY_ISO_Level3_Latch, &ModifierMasks::thirdLevel},
                                         {XKB_KEY_ISO_Level3_Lock, &ModifierMasks::thirdLevel},
                                         {XKB_KEY_ISO_Level5_Shift, &ModifierMasks::fifthLevel},
                                         {XKB_KEY_ISO_Level5_Latch, &ModifierMasks::fifthLevel},
                                         {XKB_KEY_ISO_Level5_Lock, &ModifierMasks::fifthLevel}}};

xkb_mod_mask_t maskOf(xkb_keymap* keymap, const char* name) {
    const xkb_mod_index_t index = xkb_keymap_mod_get_index(keymap, name);
    return index == XKB_MOD_INVALID ? 0 : xkb_mod_mask_t{1} << index;
}

/// Also where the keymap gives such a key no effect.
bool isModifierSymbol(xkb_keysym_t symbol) {
    return (symbol >= XKB_KEY_Shift_L && symbol <= XKB_KEY_Hyper_R) ||
           (symbol >= XKB_KEY_ISO_Lock && symbol <= XKB_KEY_ISO_Level3_Lock) ||
           (symbol >= XKB_KEY_ISO_Level5_Shift && symbol <= XKB_KEY_ISO_Level5_Lock) ||
           symbol == XKB_KEY_Num_Lock;
}

std::size_t fingerprintOf(xkb_keymap* keymap) {
    struct Free {
        void operator()(char* text) const { std::free(text); }
    };
    const std::unique_ptr<char, Free> text(xkb_keymap_get_as_string(keymap, XKB_KEYMAP_FORMAT_TEXT_V1));
    return text ? std::hash<std::string_view>{}(text.get()) : 0;
}

}  // namespace

Keymap::Keymap(XkbKeymapPointer keymap)
    : m_keymap(std::move(keymap)), m_scratch(xkb_state_new(get())), m_fingerprint(fingerprintOf(get())) {
    m_effects.resize(std::max<std::size_t>(1, xkb_keymap_num_layouts(get())));
    const xkb_keycode_t last = std::min<xkb_keycode_t>(255, xkb_keymap_max_keycode(get()));
    for (xkb_layout_index_t layout = 0; layout < m_effects.size(); ++layout) {
        for (xkb_keycode_t keycode = xkb_keymap_min_keycode(get()); keycode <= last; ++keycode) {
            tryKey(static_cast<std::uint8_t>(keycode), layout);
        }
    }
    if (m_masks.option == 0) m_masks.option = m_meta;
    m_masks.shift |= maskOf(get(), XKB_MOD_NAME_SHIFT);
    m_masks.control |= maskOf(get(), XKB_MOD_NAME_CTRL);
    // Caps Lock may be made a locking Shift; then it is one.
    const xkb_mod_mask_t held = m_masks.shift | m_masks.control | m_masks.option | m_masks.command;
    m_masks.capsLock = (m_masks.capsLock | maskOf(get(), XKB_MOD_NAME_CAPS)) & ~held;
    m_masks.numLock &= ~held;
    m_masks.scrollLock &= ~held;
}

void Keymap::tryKey(std::uint8_t keycode, xkb_layout_index_t layout) {
    if (xkb_keymap_num_layouts_for_key(get(), keycode) == 0) return;
    const XkbStatePointer state(xkb_state_new(get()));
    xkb_state_update_mask(state.get(), 0, 0, 0, 0, 0, layout);
    const xkb_keysym_t symbol = xkb_state_key_get_one_sym(state.get(), keycode);
    xkb_state_update_key(state.get(), keycode, XKB_KEY_DOWN);
    KeyEffect& effect = m_effects[layout][keycode];
    effect.modifiers = xkb_state_serialize_mods(state.get(), allModifiers) & realModifiers;
    effect.isModifierKey = effect.modifiers != 0 || isModifierSymbol(symbol);
    noteRole(symbol, effect.modifiers);
}

void Keymap::noteRole(xkb_keysym_t symbol, xkb_mod_mask_t modifiers) {
    for (const Role& role : roles) {
        if (role.symbol == symbol) m_masks.*role.mask |= modifiers;
    }
    if (symbol == XKB_KEY_Meta_L || symbol == XKB_KEY_Meta_R) m_meta |= modifiers;
}

const Keymap::KeyEffect& Keymap::effect(std::uint8_t keycode, xkb_layout_index_t layout) const {
    // A key with fewer groups than the keymap was tried in each all the same; only the index must exist.
    return m_effects[std::min<std::size_t>(layout, m_effects.size() - 1)][keycode];
}

xkb_mod_mask_t Keymap::keyModifiers(std::uint8_t keycode, xkb_layout_index_t layout) const {
    return effect(keycode, layout).modifiers;
}

bool Keymap::isModifierKey(std::uint8_t keycode, xkb_layout_index_t layout) const {
    return effect(keycode, layout).isModifierKey;
}

xkb_keysym_t Keymap::symbol(std::uint8_t keycode, xkb_mod_mask_t modifiers, xkb_layout_index_t layout) const {
    xkb_state_update_mask(m_scratch.get(), modifiers, 0, 0, 0, 0, layout);
    return xkb_state_key_get_one_sym(m_scratch.get(), keycode);
}

std::uint32_t Keymap::reported(xkb_mod_mask_t modifiers) const {
    std::uint32_t result = 0;
    if ((modifiers & m_masks.command) != 0) result |= modifier::command;
    if ((modifiers & m_masks.shift) != 0) result |= modifier::shift;
    if ((modifiers & m_masks.option) != 0) result |= modifier::option;
    if ((modifiers & m_masks.control) != 0) result |= modifier::control;
    return result;
}

std::optional<xkb_mod_mask_t> Keymap::real(std::uint32_t reported) const {
    xkb_mod_mask_t result = 0;
    const auto add = [&](std::uint32_t bit, xkb_mod_mask_t mask) {
        if ((reported & bit) == 0) return true;
        result |= mask;
        return mask != 0;
    };
    const bool complete = add(modifier::command, m_masks.command) && add(modifier::shift, m_masks.shift) &&
                          add(modifier::option, m_masks.option) && add(modifier::control, m_masks.control);
    return complete ? std::optional(result) : std::nullopt;
}

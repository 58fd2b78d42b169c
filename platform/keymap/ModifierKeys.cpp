// SPDX-License-Identifier: MIT
#include "platform/keymap/ModifierKeys.h"

#include <algorithm>

#include "platform/keymap/ModifierMasks.h"
#include "platform/keymap/XkbPointers.h"

namespace {

/// Left Shift, Control, Alt and Super and the right Alt that is AltGr, where a keyboard has them. A modifier
/// is held by one of these if the keymap says so; otherwise by the lowest key that sets it.
constexpr std::array<std::uint8_t, 5> usualKeys = {50, 37, 64, 133, 108};

xkb_mod_mask_t modifiersOf(xkb_state* state, xkb_state_component component) {
    return xkb_state_serialize_mods(state, component) & realModifiers;
}

/// Also where the keymap gives such a key no effect.
bool isModifierSymbol(xkb_keysym_t symbol) {
    return (symbol >= XKB_KEY_Shift_L && symbol <= XKB_KEY_Hyper_R) ||
           (symbol >= XKB_KEY_ISO_Lock && symbol <= XKB_KEY_ISO_Level3_Lock) ||
           (symbol >= XKB_KEY_ISO_Level5_Shift && symbol <= XKB_KEY_ISO_Level5_Lock) ||
           symbol == XKB_KEY_Num_Lock;
}

}  // namespace

ModifierKeys::ModifierKeys(xkb_keymap* keymap)
    : m_effects(std::max<std::size_t>(1, xkb_keymap_num_layouts(keymap))) {
    const auto last = std::min<xkb_keycode_t>(xkbcode::last, xkb_keymap_max_keycode(keymap));
    for (auto keycode = xkb_keymap_min_keycode(keymap); keycode <= last; ++keycode) {
        if (xkb_keymap_num_layouts_for_key(keymap, keycode) == 0) continue;
        // A key with fewer groups than the keymap has its own rule for the others; trying follows it.
        for (xkb_layout_index_t layout = 0; layout < m_effects.size(); ++layout) {
            tryKey(keymap, static_cast<std::uint8_t>(keycode), layout);
            tryLevels(keymap, static_cast<std::uint8_t>(keycode), layout);
        }
    }
}

void ModifierKeys::tryKey(xkb_keymap* keymap, std::uint8_t keycode, xkb_layout_index_t layout) {
    const XkbStatePointer state(xkb_state_new(keymap));
    xkb_state_update_mask(state.get(), 0, 0, 0, 0, 0, layout);
    const xkb_keysym_t symbol = xkb_state_key_get_one_sym(state.get(), keycode);

    xkb_state_update_key(state.get(), keycode, XKB_KEY_DOWN);
    Effect& effect = m_effects[layout][keycode];
    effect.set = modifiersOf(state.get(), XKB_STATE_MODS_EFFECTIVE);
    const xkb_mod_mask_t held = modifiersOf(state.get(), XKB_STATE_MODS_DEPRESSED);
    const bool moves = xkb_state_serialize_layout(state.get(), XKB_STATE_LAYOUT_EFFECTIVE) != layout;
    const bool locks = xkb_state_serialize_layout(state.get(), XKB_STATE_LAYOUT_LOCKED) != layout;
    effect.isModifierKey = effect.set != 0 || isModifierSymbol(symbol) || (moves && !locks);

    xkb_state_update_key(state.get(), keycode, XKB_KEY_UP);
    const bool isLock = modifiersOf(state.get(), XKB_STATE_MODS_EFFECTIVE) != 0;
    const xkb_mod_mask_t momentary = moves || isLock ? 0 : held;
    if (layout == 0) m_momentary[keycode] = momentary;
    if (m_momentary[keycode] != momentary) m_momentary[keycode] = 0;
    if (isLock) m_locks.set(keycode);
    m_held[keycode] |= held;
}

/// What the key locks where other keys choose its level.
void ModifierKeys::tryLevels(xkb_keymap* keymap, std::uint8_t keycode, xkb_layout_index_t layout) {
    constexpr std::size_t maxMasks = 16;
    std::array<xkb_mod_mask_t, maxMasks> masks{};
    const xkb_level_index_t levels = xkb_keymap_num_levels_for_key(keymap, keycode, layout);
    for (xkb_level_index_t level = 0; level < levels; ++level) {
        const xkb_keysym_t* symbols = nullptr;
        const int count = xkb_keymap_key_get_syms_by_level(keymap, keycode, layout, level, &symbols);
        // A key that types a character locks nothing.
        if (count != 1 || xkb_keysym_to_utf32(*symbols) != 0) continue;
        const std::size_t ways =
            xkb_keymap_key_get_mods_for_level(keymap, keycode, layout, level, masks.data(), masks.size());
        for (std::size_t way = 0; way < ways; ++way) {
            const XkbStatePointer state(xkb_state_new(keymap));
            xkb_state_update_mask(state.get(), masks[way], 0, 0, 0, 0, layout);
            xkb_state_update_key(state.get(), keycode, XKB_KEY_DOWN);
            xkb_state_update_key(state.get(), keycode, XKB_KEY_UP);
            m_lockable |= modifiersOf(state.get(), XKB_STATE_MODS_LOCKED);
        }
    }
}

const ModifierKeys::Effect& ModifierKeys::effect(std::uint8_t keycode, xkb_layout_index_t layout) const {
    return m_effects[std::min<std::size_t>(layout, m_effects.size() - 1)][keycode];
}

xkb_mod_mask_t ModifierKeys::setBy(std::uint8_t keycode, xkb_layout_index_t layout) const {
    return effect(keycode, layout).set;
}

bool ModifierKeys::isModifierKey(std::uint8_t keycode, xkb_layout_index_t layout) const {
    return effect(keycode, layout).isModifierKey;
}

std::uint8_t ModifierKeys::keyFor(xkb_mod_mask_t modifier, std::uint8_t except) const {
    const auto holds = [&](std::uint8_t keycode) {
        return keycode != except && m_momentary[keycode] == modifier;
    };
    const auto* const usual = std::find_if(usualKeys.begin(), usualKeys.end(), holds);
    if (usual != usualKeys.end()) return *usual;
    for (std::uint16_t keycode = xkbcode::first; keycode <= xkbcode::last; ++keycode) {
        if (holds(static_cast<std::uint8_t>(keycode))) return static_cast<std::uint8_t>(keycode);
    }
    return 0;
}

xkb_mod_mask_t ModifierKeys::heldBy(const KeycodeSet& keycodes) const {
    xkb_mod_mask_t modifiers = 0;
    for (std::size_t keycode = 0; keycodes.any() && keycode < keycodes.size(); ++keycode) {
        if (keycodes[keycode]) modifiers |= m_held[keycode];
    }
    return modifiers;
}

KeycodeSet ModifierKeys::holdersOf(xkb_mod_mask_t modifiers, const KeycodeSet& among) const {
    KeycodeSet holders;
    for (std::size_t keycode = 0; keycode < among.size(); ++keycode) {
        holders[keycode] = among[keycode] && (m_held[keycode] & modifiers) != 0;
    }
    return holders;
}

bool ModifierKeys::canHold(xkb_mod_mask_t mask) const {
    for (xkb_mod_mask_t modifier = 1; modifier <= realModifiers; modifier <<= 1U) {
        if ((mask & modifier) != 0 && keyFor(modifier) == 0) return false;
    }
    return mask != 0;
}

// SPDX-License-Identifier: MIT
#include "platform/keymap/ModifierKeys.h"

#include <algorithm>

#include "platform/keymap/XkbPointers.h"

namespace {

constexpr std::uint32_t realModifiers = 0xFF;

/// Left Shift, Control, Alt and Super and the right Alt that is AltGr, where a keyboard has them. A bit is
/// held by one of these if the keymap says so; otherwise by the lowest key that it gives it.
constexpr std::array<std::uint8_t, 5> usualKeys = {50, 37, 64, 133, 108};

struct Effect {
    std::uint8_t held = 0;
    bool isMomentary = false;
    bool isLock = false;
};

std::uint8_t modifiersOf(xkb_state* state, xkb_state_component component) {
    return static_cast<std::uint8_t>(xkb_state_serialize_mods(state, component) & realModifiers);
}

Effect effectOf(xkb_keymap* keymap, std::uint8_t keycode, xkb_layout_index_t layout) {
    const XkbStatePointer state(xkb_state_new(keymap));
    xkb_state_update_mask(state.get(), 0, 0, 0, 0, 0, layout);
    xkb_state_update_key(state.get(), keycode, XKB_KEY_DOWN);
    Effect effect;
    effect.held = modifiersOf(state.get(), XKB_STATE_MODS_DEPRESSED);
    const bool moves = xkb_state_serialize_layout(state.get(), XKB_STATE_LAYOUT_EFFECTIVE) != layout;
    xkb_state_update_key(state.get(), keycode, XKB_KEY_UP);
    effect.isLock = modifiersOf(state.get(), XKB_STATE_MODS_EFFECTIVE) != 0;
    effect.isMomentary = !moves && !effect.isLock;
    return effect;
}

}  // namespace

ModifierKeys::ModifierKeys(xkb_keymap* keymap) {
    const auto last = std::min<xkb_keycode_t>(255, xkb_keymap_max_keycode(keymap));
    for (auto keycode = xkb_keymap_min_keycode(keymap); keycode <= last; ++keycode) {
        if (xkb_keymap_num_layouts_for_key(keymap, keycode) > 0) {
            examine(keymap, static_cast<std::uint8_t>(keycode));
        }
    }
}

void ModifierKeys::examine(xkb_keymap* keymap, std::uint8_t keycode) {
    const auto layouts = xkb_keymap_num_layouts_for_key(keymap, keycode);
    for (xkb_layout_index_t layout = 0; layout < layouts; ++layout) {
        const Effect effect = effectOf(keymap, keycode, layout);
        const std::uint8_t momentary = effect.isMomentary ? effect.held : std::uint8_t{0};
        if (layout == 0) m_momentary[keycode] = momentary;
        if (m_momentary[keycode] != momentary) m_momentary[keycode] = 0;
        if (effect.isLock) m_locks.set(keycode);
        m_held[keycode] = static_cast<std::uint8_t>(m_held[keycode] | effect.held);
    }
}

std::uint8_t ModifierKeys::keyFor(std::uint8_t bit) const {
    const auto* const usual = std::find_if(usualKeys.begin(), usualKeys.end(),
                                           [&](std::uint8_t keycode) { return m_momentary[keycode] == bit; });
    if (usual != usualKeys.end()) return *usual;
    const auto* const any = std::find(m_momentary.begin(), m_momentary.end(), bit);
    return any == m_momentary.end() ? std::uint8_t{0} : static_cast<std::uint8_t>(any - m_momentary.begin());
}

bool ModifierKeys::canHold(std::uint8_t mask) const {
    for (int bit = 0; bit < 8; ++bit) {
        const auto single = static_cast<std::uint8_t>(mask & (1U << bit));
        if (single != 0 && keyFor(single) == 0) return false;
    }
    return mask != 0;
}

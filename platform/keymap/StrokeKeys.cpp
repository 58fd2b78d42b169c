// SPDX-License-Identifier: MIT
#include "platform/keymap/StrokeKeys.h"

std::vector<std::uint8_t> keysAround(const ModifierKeys& keys, const Stroke& stroke, xkb_mod_mask_t down) {
    std::vector<std::uint8_t> around;
    for (xkb_mod_mask_t bit = 1; bit <= realModifiers; bit <<= 1U) {
        if ((stroke.modifiers & ~down & bit) == 0) continue;
        const std::uint8_t keycode = keys.keyFor(bit, stroke.keycode);
        if (keycode != 0) around.push_back(keycode);
    }
    return around;
}

xkb_layout_index_t layoutAfter(const Keymap& keymap, const Stroke& stroke, xkb_layout_index_t layout) {
    xkb_mod_mask_t held = 0;
    for (const std::uint8_t keycode : keysAround(keymap.keys(), stroke, 0)) {
        held |= keymap.keys().heldBy(keycode);
    }
    const XkbStatePointer state(xkb_state_new(keymap.get()));
    xkb_state_update_mask(state.get(), held, 0, stroke.lockValues, 0, 0, layout);
    xkb_state_update_key(state.get(), stroke.keycode, XKB_KEY_DOWN);
    return xkb_state_serialize_layout(state.get(), XKB_STATE_LAYOUT_LOCKED);
}

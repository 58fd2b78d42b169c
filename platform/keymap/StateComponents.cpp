// SPDX-License-Identifier: MIT
#include "platform/keymap/StateComponents.h"

#include "platform/keymap/ModifierMasks.h"

XkbComponents componentsOf(xkb_state* state) {
    const auto modifiers = [state](xkb_state_component which) {
        return xkb_state_serialize_mods(state, which) & realModifiers;
    };
    const auto layout = [state](xkb_state_component which) {
        return xkb_state_serialize_layout(state, which);
    };
    return {.depressed = modifiers(XKB_STATE_MODS_DEPRESSED),
            .latched = modifiers(XKB_STATE_MODS_LATCHED),
            .locked = modifiers(XKB_STATE_MODS_LOCKED),
            .baseLayout = layout(XKB_STATE_LAYOUT_DEPRESSED),
            .latchedLayout = layout(XKB_STATE_LAYOUT_LATCHED),
            .lockedLayout = layout(XKB_STATE_LAYOUT_LOCKED)};
}

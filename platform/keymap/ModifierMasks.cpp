// SPDX-License-Identifier: MIT
#include "platform/keymap/ModifierMasks.h"

#include <algorithm>
#include <array>

#include "platform/XkbCodes.h"
#include "platform/keymap/ModifierKeys.h"
#include "platform/keymap/XkbPointers.h"

namespace {

/// A purpose, the name of its modifier, and what the keys that set it are called; empty places are 0.
struct Purpose {
    xkb_mod_mask_t ModifierMasks::*mask;
    const char* name;
    std::array<xkb_keysym_t, 3> symbols;
};
/// A purpose that stands here twice takes the second row where the first finds nothing.
constexpr std::array<Purpose, 10> purposes = {
    {{&ModifierMasks::shift, "Shift", {XKB_KEY_Shift_L, XKB_KEY_Shift_R}},
     {&ModifierMasks::control, "Control", {XKB_KEY_Control_L, XKB_KEY_Control_R}},
     {&ModifierMasks::option, "Alt", {XKB_KEY_Alt_L, XKB_KEY_Alt_R}},
     {&ModifierMasks::option, "Meta", {XKB_KEY_Meta_L, XKB_KEY_Meta_R}},
     {&ModifierMasks::command, "Super", {XKB_KEY_Super_L, XKB_KEY_Super_R}},
     {&ModifierMasks::capsLock, "Lock", {XKB_KEY_Caps_Lock}},
     {&ModifierMasks::numLock, "NumLock", {XKB_KEY_Num_Lock}},
     {&ModifierMasks::scrollLock, "ScrollLock", {XKB_KEY_Scroll_Lock}},
     {&ModifierMasks::thirdLevel,
      "LevelThree",
      {XKB_KEY_ISO_Level3_Shift, XKB_KEY_ISO_Level3_Latch, XKB_KEY_ISO_Level3_Lock}},
     {&ModifierMasks::fifthLevel,
      "LevelFive",
      {XKB_KEY_ISO_Level5_Shift, XKB_KEY_ISO_Level5_Latch, XKB_KEY_ISO_Level5_Lock}}}};

/// Looks at a keymap with a state of its own.
class MaskFinder {
  public:
    MaskFinder(xkb_keymap* keymap, const ModifierKeys& keys)
        : m_keymap(keymap), m_keys(keys), m_state(xkb_state_new(keymap)) {}

    /// The real modifiers on which the modifier of that name lies.
    xkb_mod_mask_t named(const char* name) const {
        const xkb_mod_index_t index = xkb_keymap_mod_get_index(m_keymap, name);
        if (index == XKB_MOD_INVALID) return 0;
        xkb_state_update_mask(m_state.get(), xkb_mod_mask_t{1} << index, 0, 0, 0, 0, 0);
        return xkb_state_serialize_mods(m_state.get(), XKB_STATE_MODS_EFFECTIVE) & realModifiers;
    }

    /// The real modifiers that the keys with these symbols set, in whichever group.
    xkb_mod_mask_t setByKeys(const std::array<xkb_keysym_t, 3>& symbols) const {
        xkb_mod_mask_t found = 0;
        for (xkb_layout_index_t layout = 0; layout < xkb_keymap_num_layouts(m_keymap); ++layout) {
            xkb_state_update_mask(m_state.get(), 0, 0, 0, 0, 0, layout);
            for (std::uint32_t keycode = xkbcode::first; keycode <= xkbcode::last; ++keycode) {
                const xkb_keysym_t symbol = xkb_state_key_get_one_sym(m_state.get(), keycode);
                if (symbol == XKB_KEY_NoSymbol || !isOneOf(symbols, symbol)) continue;
                found |= m_keys.setBy(static_cast<std::uint8_t>(keycode), layout);
            }
        }
        return found;
    }

  private:
    static bool isOneOf(const std::array<xkb_keysym_t, 3>& symbols, xkb_keysym_t symbol) {
        return std::find(symbols.begin(), symbols.end(), symbol) != symbols.end();
    }

    xkb_keymap* m_keymap;
    const ModifierKeys& m_keys;
    XkbStatePointer m_state;
};

}  // namespace

ModifierMasks findModifierMasks(xkb_keymap* keymap, const ModifierKeys& keys) {
    const MaskFinder finder(keymap, keys);
    ModifierMasks masks;
    for (const Purpose& purpose : purposes) {
        xkb_mod_mask_t& mask = masks.*purpose.mask;
        if (mask == 0) mask = finder.named(purpose.name);
        if (mask == 0) mask = finder.setByKeys(purpose.symbols);
    }
    const xkb_mod_mask_t held = masks.shift | masks.control | masks.option | masks.command;
    masks.capsLock &= ~held;
    masks.numLock &= ~held;
    masks.scrollLock &= ~held;
    return masks;
}

// SPDX-License-Identifier: MIT
#include "platform/keymap/KeypadDigit.h"

#include <algorithm>
#include <array>

namespace {

/// The keys of the navigation block, by what the keypad types in their place.
struct NavigationKey {
    xkb_keysym_t symbol;
    std::uint32_t keyCode;
};
constexpr std::array<NavigationKey, 10> navigationKeys = {{{XKB_KEY_KP_Insert, 114},
                                                           {XKB_KEY_KP_Home, 115},
                                                           {XKB_KEY_KP_Page_Up, 116},
                                                           {XKB_KEY_KP_Delete, 117},
                                                           {XKB_KEY_KP_End, 119},
                                                           {XKB_KEY_KP_Page_Down, 121},
                                                           {XKB_KEY_KP_Left, 123},
                                                           {XKB_KEY_KP_Right, 124},
                                                           {XKB_KEY_KP_Down, 125},
                                                           {XKB_KEY_KP_Up, 126}}};

bool isNavigation(xkb_keysym_t symbol) { return symbol == XKB_KEY_KP_Begin || navigationCodeOf(symbol) != 0; }

}  // namespace

std::uint32_t navigationCodeOf(xkb_keysym_t symbol) {
    const auto* const key = std::find_if(navigationKeys.begin(), navigationKeys.end(),
                                         [&](const NavigationKey& one) { return one.symbol == symbol; });
    return key == navigationKeys.end() ? 0 : key->keyCode;
}

xkb_mod_mask_t numLockForDigit(const Keymap& keymap, std::uint8_t keycode, xkb_mod_mask_t modifiers,
                               xkb_layout_index_t layout) {
    const xkb_mod_mask_t numLock = keymap.masks().numLock;
    const xkb_mod_mask_t others = modifiers & ~numLock;
    const bool isLost = isNavigation(keymap.symbol(keycode, others | numLock, layout));
    return isLost && !isNavigation(keymap.symbol(keycode, others, layout)) ? 0 : numLock;
}

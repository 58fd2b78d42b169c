// SPDX-License-Identifier: MIT
#include "platform/wayland/Binders.h"

#include "platform/desktops/KdeShortcuts.h"
#include "platform/desktops/SwayBindings.h"
#include "platform/wayland/KdeKeys.h"
#include "platform/wayland/SeatKeymap.h"

namespace wayland {

namespace {

/// Whether a key types a symbol of that name in any layout, with or without Shift.
bool types(const Keymap& keymap, std::uint8_t keycode, const std::string& name) {
    const xkb_keysym_t symbol = xkb_keysym_from_name(name.c_str(), XKB_KEYSYM_CASE_INSENSITIVE);
    if (symbol == XKB_KEY_NoSymbol) return false;
    const auto layouts = xkb_keymap_num_layouts(keymap.get());
    for (xkb_layout_index_t layout = 0; layout < layouts; ++layout) {
        for (const xkb_mod_mask_t modifiers : {xkb_mod_mask_t(0), keymap.masks().shift}) {
            const xkb_keysym_t typed = keymap.symbol(keycode, modifiers, layout);
            if (xkb_keysym_to_lower(typed) == xkb_keysym_to_lower(symbol)) return true;
        }
    }
    return false;
}

}  // namespace

std::unique_ptr<HotKeyBinder> openBinder(SessionBus* bus, const SeatKeymap& seat) {
    if (bus != nullptr) {
        return std::make_unique<KdeShortcuts>(
            *bus, [&seat](const KeyGrab& grab) { return kdeCombination(seat, grab); });
    }
    auto bindings = SwayBindings::open([&seat](std::uint8_t keycode, const std::string& symbol) {
        return types(seat.keymap(), keycode, symbol);
    });
    return bindings ? std::move(bindings).value() : nullptr;
}

}  // namespace wayland

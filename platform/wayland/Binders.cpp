// SPDX-License-Identifier: MIT
#include "platform/wayland/Binders.h"

#include "platform/desktops/KdeShortcuts.h"
#include "platform/desktops/PortalShortcuts.h"
#include "platform/desktops/SwayBindings.h"
#include "platform/keymap/TriggerNames.h"
#include "platform/wayland/DesktopServices.h"
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

std::optional<KeyGrab> meaningOf(const Keymap& keymap, const std::string& words) {
    const auto combination = meaningOfTrigger(keymap, words);
    if (!combination) return std::nullopt;
    return KeyGrab{.keycode = combination->keycode,
                   .modifiers = static_cast<std::uint16_t>(combination->modifiers)};
}

}  // namespace

std::unique_ptr<HotKeyBinder> openBinder(const DesktopServices& desktop, const SeatKeymap& seat) {
    if (desktop.isKde()) {
        return std::make_unique<KdeShortcuts>(
            *desktop.bus(), [&seat](const KeyGrab& grab) { return kdeCombination(seat, grab); });
    }
    if (desktop.hasShortcutsPortal()) {
        return std::make_unique<PortalShortcuts>(
            *desktop.bus(),
            PortalShortcuts::Words{
                .triggerOf =
                    [&seat](const KeyGrab& grab) {
                        return portalTrigger(seat.keymap(), grab.keycode, grab.modifiers);
                    },
                .meaningOf = [&seat](const std::string& words) { return meaningOf(seat.keymap(), words); }});
    }
    if (!desktop.isSway()) return nullptr;
    auto bindings = SwayBindings::open([&seat](std::uint8_t keycode, const std::string& symbol) {
        return types(seat.keymap(), keycode, symbol);
    });
    return bindings ? std::move(bindings).value() : nullptr;
}

}  // namespace wayland

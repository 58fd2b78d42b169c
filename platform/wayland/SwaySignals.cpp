// SPDX-License-Identifier: MIT
#include "platform/wayland/SwaySignals.h"

#include <utility>

#include "platform/evdev/EvdevEventMonitor.h"
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

Result<std::unique_ptr<SwayBindings>> openSwayBindings(const SeatKeymap& seat) {
    return SwayBindings::open([&seat](std::uint8_t keycode, const std::string& symbol) {
        return types(seat.keymap(), keycode, symbol);
    });
}

SwaySignals::SwaySignals(SwayBindings& bindings, evdev::EvdevEventMonitor& monitor,
                         std::function<std::optional<std::uint32_t>()> layout)
    : m_bindings(bindings), m_monitor(monitor), m_layout(std::move(layout)) {}

void SwaySignals::dispatch() {
    while (const auto event = m_bindings.nextEvent()) pass(*event);
}

void SwaySignals::pass(const SwayBindings::Event& event) {
    const KeyGrab grab{.keycode = event.keycode, .modifiers = event.modifiers};
    switch (event.kind) {
        case SwayBindings::Event::Kind::press:
            return m_monitor.desktopTells(grab, true);
        case SwayBindings::Event::Kind::release:
            return m_monitor.desktopTells(grab, false);
        case SwayBindings::Event::Kind::reload:
            return m_monitor.desktopForgot();
        case SwayBindings::Event::Kind::layout:
            // Of several switches that are told of the last one counts.
            if (const auto layout = m_layout()) m_monitor.setLayout(*layout);
            return;
    }
}

}  // namespace wayland

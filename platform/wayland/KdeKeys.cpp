// SPDX-License-Identifier: MIT
#include "platform/wayland/KdeKeys.h"

#include <cctype>

#include "platform/keymap/QtKeys.h"
#include "platform/keymap/TriggerNames.h"
#include "platform/wayland/SeatKeymap.h"

namespace wayland {

namespace {

/// What a key types without modifiers, as a name: "R", "F9".
std::string nameOf(const Keymap& keymap, std::uint8_t keycode) {
    std::string text = symbolName(keymap, keycode);
    if (text.size() == 1) {
        text.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(text.front())));
    }
    return text;
}

}  // namespace

KdeShortcuts::Combination kdeCombination(const SeatKeymap& seat, const KeyGrab& grab) {
    const Keymap& keymap = seat.keymap();
    const ModifierMasks& masks = keymap.masks();
    std::string name;
    if ((grab.modifiers & masks.control) != 0) name += "Ctrl+";
    if ((grab.modifiers & masks.option) != 0) name += "Alt+";
    if ((grab.modifiers & masks.shift) != 0) name += "Shift+";
    if ((grab.modifiers & masks.command) != 0) name += "Super+";
    return {.keys = qtCombinations(keymap, grab.keycode, grab.modifiers),
            .name = name + nameOf(keymap, grab.keycode)};
}

}  // namespace wayland

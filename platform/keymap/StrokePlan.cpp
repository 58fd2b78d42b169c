// SPDX-License-Identifier: MIT
#include "platform/keymap/StrokePlan.h"

#include "platform/KeyCodes.h"
#include "platform/Modifiers.h"

namespace {

Result<Stroke> around(const Keymap& keymap, std::uint32_t modifiers, std::uint32_t keyCode) {
    const auto held = keymap.real(modifiers, keyCode);
    if (!held) return held.error();
    Stroke stroke{.modifiers = held.value()};
    if ((modifiers & modifier::capsLock) != 0) {
        stroke.lockMask = stroke.lockValues = keymap.masks().capsLock;
    }
    return stroke;
}

}  // namespace

Result<Stroke> planModifiers(const Keymap& keymap, std::uint32_t modifiers) {
    return around(keymap, modifiers, 0);
}

Result<Stroke> planStroke(const Keymap& keymap, std::uint32_t keyCode, std::uint32_t modifiers) {
    const std::uint32_t baseCode = keyCode & ~keycode::choosers;
    if (baseCode == keycode::power) {
        return Error{"The power key cannot be pressed by a script.", "Take key code 127 out of the script."};
    }
    const std::uint8_t keycode = keymap.keycodeFor(keyCode);
    if (keycode == 0) return Stroke{};
    auto planned = around(keymap, modifiers, keyCode);
    if (!planned) return planned;
    Stroke stroke = planned.value();
    stroke.keycode = keycode;
    if (keycode::isKeypadDigit(baseCode)) {
        stroke.lockMask |= keymap.masks().numLock;
        stroke.lockValues |= keymap.masks().numLock;
    }
    return stroke;
}

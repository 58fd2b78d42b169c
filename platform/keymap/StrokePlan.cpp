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

xkb_mod_mask_t locksOfText(const Keymap& keymap) { return realModifiers & ~keymap.masks().numLock; }

Result<Stroke> planModifiers(const Keymap& keymap, std::uint32_t modifiers) {
    auto planned = around(keymap, modifiers, 0);
    if (!planned) return planned;
    Stroke stroke = planned.value();
    stroke.lockMask = locksOfText(keymap);
    return stroke;
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

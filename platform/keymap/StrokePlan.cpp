// SPDX-License-Identifier: MIT
#include "platform/keymap/StrokePlan.h"

#include <string>

#include "platform/KeyCodes.h"
#include "platform/Modifiers.h"
#include "platform/Sentence.h"
#include "platform/keymap/KeypadDigit.h"

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

Error noLayout(xkb_layout_index_t layout) {
    //: %1 is a number.
    return {sentence("Layouts", "The keyboard has no layout %1.").arg(std::to_string(layout + 1)),
            sentence("Layouts", "Add it to the keyboard layouts, or record the macro again.")};
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

Result<Stroke> planStroke(const Keymap& keymap, std::uint32_t keyCode, std::uint32_t modifiers,
                          xkb_layout_index_t layout) {
    const std::uint32_t baseCode = keycode::baseOf(keyCode);
    if (baseCode == keycode::power) {
        return Error{sentence("Keys", "The power key cannot be pressed by a script."),
                     sentence("Keys", "Take key code 127 out of the script.")};
    }
    const std::uint8_t keycode = keymap.keycodeFor(keyCode);
    if (keycode == 0) return Stroke{};
    auto planned = around(keymap, modifiers, keyCode);
    if (!planned) return planned;
    Stroke stroke = planned.value();
    stroke.keycode = keycode;
    if ((keyCode & keycode::capsLock) != 0) {
        stroke.lockMask |= keymap.masks().capsLock;
        stroke.lockValues |= keymap.masks().capsLock;
    }
    if (const auto wanted = keycode::layoutOf(keyCode)) {
        if (*wanted >= xkb_keymap_num_layouts(keymap.get())) return noLayout(*wanted);
        stroke.group = static_cast<std::int8_t>(*wanted);
    }
    if (keycode::isKeypadDigit(baseCode)) {
        stroke.lockMask |= keymap.masks().numLock;
        const xkb_mod_mask_t around = stroke.modifiers & ~keymap.masks().commands();
        stroke.lockValues |=
            numLockForDigit(keymap, keycode, around, keycode::layoutOf(keyCode).value_or(layout));
    }
    return stroke;
}

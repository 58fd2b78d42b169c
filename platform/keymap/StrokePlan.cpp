// SPDX-License-Identifier: MIT
#include "platform/keymap/StrokePlan.h"

#include <array>

#include "platform/KeyCodes.h"
#include "platform/Modifiers.h"
#include "platform/XkbCodes.h"

namespace {

struct Role {
    std::uint32_t flag;
    std::uint8_t mask;
    const char* name;
};

/// The bits of those roles whose flag is set, or an error that names the one which no key holds.
template <std::size_t count>
Result<std::uint8_t> bitsOf(const std::array<Role, count>& roles, const ModifierKeys& keys,
                            std::uint32_t flags) {
    std::uint8_t bits = 0;
    for (const Role& role : roles) {
        if ((flags & role.flag) == 0) continue;
        if (!keys.canHold(role.mask)) {
            return Error{std::string("The keyboard layout has no key for ") + role.name + ".",
                         "Choose a keyboard layout that has one."};
        }
        bits = static_cast<std::uint8_t>(bits | role.mask);
    }
    return bits;
}

Result<std::uint8_t> planChoosers(const ModifierMasks& masks, const ModifierKeys& keys,
                                  std::uint32_t keyCode) {
    const std::array<Role, 2> roles = {{{keycode::thirdLevel, masks.levelThree, "the third level (AltGr)"},
                                        {keycode::fifthLevel, masks.levelFive, "the fifth level"}}};
    // The extension bit of codes without a position lies above the choosers.
    return bitsOf(roles, keys, keyCode & keycode::choosers);
}

std::uint8_t keycodeFor(xkb_keymap* keymap, std::uint32_t keyCode) {
    const auto evdev = keycode::evdevFor(keyCode);
    if (!evdev) return 0;
    const xkb_keycode_t keycode = xkbcode::fromEvdev(*evdev);
    if (keycode < xkb_keymap_min_keycode(keymap) || keycode > xkb_keymap_max_keycode(keymap)) return 0;
    return static_cast<std::uint8_t>(keycode);
}

}  // namespace

Result<std::uint8_t> planModifiers(const ModifierMasks& masks, const ModifierKeys& keys,
                                   std::uint32_t modifiers) {
    const std::array<Role, 4> roles = {{{modifier::command, masks.command, "Super"},
                                        {modifier::control, ModifierMasks::control, "Control"},
                                        {modifier::option, masks.option, "Alt"},
                                        {modifier::shift, ModifierMasks::shift, "Shift"}}};
    return bitsOf(roles, keys, modifiers);
}

Result<Stroke> planStroke(xkb_keymap* keymap, const ModifierMasks& masks, const ModifierKeys& keys,
                          std::uint32_t keyCode, std::uint32_t modifiers) {
    if ((keyCode & ~keycode::choosers) == keycode::power) {
        return Error{"The power key cannot be pressed by a script.", "Take key code 127 out of the script."};
    }
    Stroke stroke;
    stroke.keycode = keycodeFor(keymap, keyCode);
    if (stroke.keycode == 0) return stroke;
    const auto held = planModifiers(masks, keys, modifiers);
    if (!held) return held.error();
    const auto choosers = planChoosers(masks, keys, keyCode);
    if (!choosers) return choosers.error();
    stroke.modifiers = static_cast<std::uint8_t>(held.value() | choosers.value());
    if ((modifiers & modifier::capsLock) != 0) stroke.lockMask = stroke.lockValues = ModifierMasks::lock;
    if (keycode::isKeypadDigit(keyCode & ~keycode::choosers)) {
        stroke.lockMask = static_cast<std::uint8_t>(stroke.lockMask | masks.numLock);
        stroke.lockValues = static_cast<std::uint8_t>(stroke.lockValues | masks.numLock);
    }
    return stroke;
}

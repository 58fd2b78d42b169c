// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>

#include "platform/keymap/InjectorKeymap.h"

/// The modifier bits that the rules "evdev" give their virtual modifiers.
inline constexpr ModifierMasks evdevMasks{
    .option = 0x08, .command = 0x40, .numLock = 0x10, .levelThree = 0x80, .levelFive = 0x20};

/// A keymap by the names of its layouts and options, as a desktop would load it.
inline InjectorKeymap injectorKeymap(const std::string& layout, const std::string& options = {},
                                     const KeycodeSet& excluded = {}) {
    const XkbContextPointer context(xkb_context_new(XKB_CONTEXT_NO_ENVIRONMENT_NAMES));
    const xkb_rule_names names{"evdev", "pc105", layout.c_str(), "", options.c_str()};
    XkbKeymapPointer keymap(xkb_keymap_new_from_names(context.get(), &names, XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (!keymap) throw std::runtime_error("no layout " + layout);
    return {std::move(keymap), evdevMasks, excluded};
}

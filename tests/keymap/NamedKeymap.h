// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <stdexcept>
#include <string>

#include "platform/keymap/Keymap.h"

/// The keymap of a layout by its names, as `setxkbmap` would load it. Needs no X server.
inline std::unique_ptr<Keymap> namedKeymap(const std::string& layout, const std::string& options = {},
                                           const std::string& variant = {}) {
    const XkbContextPointer context(xkb_context_new(XKB_CONTEXT_NO_ENVIRONMENT_NAMES));
    const xkb_rule_names names{"evdev", "pc105", layout.c_str(), variant.c_str(), options.c_str()};
    XkbKeymapPointer keymap(xkb_keymap_new_from_names(context.get(), &names, XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (!keymap) throw std::runtime_error("no layout " + layout);
    return std::make_unique<Keymap>(std::move(keymap));
}

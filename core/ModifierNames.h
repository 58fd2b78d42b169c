// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

#include "platform/Modifiers.h"

/// What a modifier is called in a script and in a display text.
struct ModifierName {
    std::uint32_t modifier = 0;
    const char* word = "";
    const char* symbol = "";
};

/// In the order in which both are written.
inline constexpr std::array<ModifierName, 4> modifierNames = {{
    {modifier::command, "command", "⌘"},
    {modifier::shift, "shift", "⇧"},
    {modifier::option, "option", "⌥"},
    {modifier::control, "control", "⌃"},
}};

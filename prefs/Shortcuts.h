// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "platform/HotKeys.h"
#include "platform/Modifiers.h"
#include "prefs/KeyCombo.h"

/// A shortcut as the program comes with it: the key with Control and Super.
constexpr KeyCombo initialKeyCombo(std::int16_t code) {
    return {.flags = controlflag::control | controlflag::command, .code = code};
}

/// One of the global shortcuts.
struct ShortcutRow {
    /// Its key in the preference table, and in the settings with "Code" and "Flags" behind it. What it does
    /// and how it is called stand under this name in engine/MacroPlayer.h and
    /// app/shortcuts/ShortcutTitles.cpp.
    std::string_view name;
    HotKeyId id = 0;
    /// Which action does the same when the program is started once more for it (app/tray/Actions.h).
    std::string_view action;
    /// Four characters; nothing looks at it.
    std::string_view signature;
    /// What its field holds until something else is stored, and what packaging/keyrill.conf stores for all
    /// users. In control flags.
    KeyCombo preset;
};

/// All shortcuts, in the order in which they are loaded, stored, registered and shown.
inline constexpr std::array shortcutRows = {
    ShortcutRow{
        .name = "record", .id = 1, .action = "record", .signature = "kyl1", .preset = initialKeyCombo(15)},
    ShortcutRow{.name = "stop", .id = 2, .action = "stop", .signature = "kyl2", .preset = initialKeyCombo(1)},
    ShortcutRow{
        .name = "play", .id = 3, .action = "play", .signature = "kyl3", .preset = initialKeyCombo(35)},
    ShortcutRow{.name = "multiplePlay",
                .id = 4,
                .action = "multiple",
                .signature = "kyl4",
                .preset = initialKeyCombo(46)},
};

/// Where the name stands in shortcutRows; another name does not compile.
consteval std::size_t shortcutIndex(std::string_view name) {
    std::size_t index = 0;
    while (shortcutRows.at(index).name != name) ++index;
    return index;
}

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <array>
#include <string>
#include <string_view>

#include "app/tray/MenuItems.h"

/// What can be asked of the running program from outside: by `keyrill --action=NAME`, by other programs on
/// the session bus, by the actions of its entry in the desktop's menus. Each does what a line of the menu
/// does; a stop also ends a playback, as its hot key does.
struct ActionRow {
    /// As users write it and as the bus has it.
    std::string_view name = {};
    /// The line's name in menuRows.
    std::string_view menuItem = {};
    /// Whether it can be of use in a program that is started for it.
    bool startsProgram = true;
    /// Whether it also ends a playback.
    bool endsPlayback = false;
    /// Whether it presses keys, and so lasts.
    bool plays = false;
};

inline constexpr std::array actionRows = {
    ActionRow{.name = "record", .menuItem = "record"},
    ActionRow{.name = "stop", .menuItem = "stop", .startsProgram = false, .endsPlayback = true},
    ActionRow{.name = "play", .menuItem = "play", .plays = true},
    ActionRow{.name = "multiple", .menuItem = "multiplePlay"},
    ActionRow{.name = "save-pause", .menuItem = "saveDelay", .startsProgram = false},
    ActionRow{.name = "macros", .menuItem = "macros"},
};

/// Null for a name that there is not.
const ActionRow* actionNamed(std::string_view name);

/// All names, "record, stop, ...".
std::string actionNames();

/// Why the action cannot be carried out now, a sentence for a person; empty if it can.
///
/// It can where the menu's line can be chosen, and a macro can be played also before the first recording has
/// been stopped, when the menu does not show it yet: it may come from a file.
QString obstacleTo(const ActionRow& action, const MenuFacts& facts);

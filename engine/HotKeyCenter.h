// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

#include "platform/HotKeys.h"
#include "prefs/Shortcuts.h"

/// One of the global hot keys: a shortcut (prefs/Shortcuts.h) and its command.
struct HotKeyRow {
    std::string_view name;
    HotKeyId id = 0;
    std::string_view action;
    std::string_view signature;
    /// What a press and a release do; null is nothing.
    void (*pressed)() = nullptr;
    void (*released)() = nullptr;
    /// Whether a press during a playback also ends it.
    bool cancelsPlayback = false;
    /// Whether it plays: a stop discards those that wait.
    bool startsPlayback = false;
};

/// All rows, in the order of shortcutRows, in which they are registered.
const std::array<HotKeyRow, shortcutRows.size()>& hotKeyRows();

/// Presses and releases of hot keys become commands from now on.
void installHotKeyHandlers();

/// Gives each row's combination free and asks for the one that the preference table holds, by the title that
/// EngineState has for it. What became of it
/// is for services().hotKeys to tell; a refused row is inert until the next call.
void registerHotKeys();

/// Run the command of the id, unless hot keys are disabled; an unknown id is nothing.
void onHotKeyPressed(HotKeyId id);
void onHotKeyReleased(HotKeyId id);

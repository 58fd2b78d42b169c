// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>

#include "platform/PlayOptions.h"
#include "platform/RecordStore.h"
#include "prefs/KeyCombo.h"

/// When something was played, by the calendar.
using PlayedAt = std::chrono::sys_seconds;

/// What belongs to a macro and not into its text.
struct MacroSettings {
    /// In control flags (platform/Modifiers.h), as shortcuts are stored; empty for none.
    KeyCombo hotKey = {};
    /// How its hot key plays it.
    PlayOptions play = {};
    /// Empty before the first time.
    std::optional<PlayedAt> lastPlayed = {};

    bool hasHotKey() const { return hotKey.code != KeyCombo().code; }

    friend bool operator==(const MacroSettings&, const MacroSettings&) = default;
};

/// What a record says. Its fields are hotKeyCode and hotKeyFlags, times (a number, or "until-stopped"), speed
/// and lastPlayed (in seconds since 1970, UTC); a field that is not there, or that has no sense, is as at
/// first.
MacroSettings settingsFrom(const Record& record);

/// Puts the settings into a record; what else it has stays. What is as at first is left out.
void putSettings(Record& record, const MacroSettings& settings);

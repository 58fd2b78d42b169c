// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

class SettingsStore;

/// Which pauses become part of a recording by themselves. The numbers are what is stored.
enum class PauseRecording : std::int32_t {
    never = 0,
    asTyped = 1,  ///< all
    atMost = 2,   ///< all, those that are too long cut
};

/// Which of them, and how long they may be.
struct PauseChoice {
    /// Of the longest pause, in milliseconds.
    static constexpr std::int32_t shortestLimit = 100;
    static constexpr std::int32_t usualLimit = 1000;
    static constexpr std::int32_t longestLimit = 60000;

    PauseRecording kind = PauseRecording::never;
    /// The longest pause where they are cut, in milliseconds.
    std::int32_t limit = usualLimit;

    friend bool operator==(const PauseChoice&, const PauseChoice&) = default;
};

/// As it is stored; what is not, or makes no sense, is as it is at first.
PauseChoice storedPauseChoice(const SettingsStore& store);

/// Sets all of it, not yet written when this returns (SettingsStore::synchronize).
void storePauseChoice(SettingsStore& store, const PauseChoice& choice);

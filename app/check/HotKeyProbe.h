// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/HotKeys.h"
#include "platform/Result.h"

class KeyboardLayout;
class SettingsStore;

/// What became of the question whether a hot key can be had.
enum class HotKeyFinding {
    unset,      ///< no combination is chosen for it
    free,       ///< nobody has it
    ours,       ///< the running program has it
    taken,      ///< it cannot be had; mostly, another program has it
    uncertain,  ///< the session does not tell at once
};

struct HotKeyFact {
    /// Its place in shortcutRows.
    std::size_t shortcut = 0;
    /// As this desktop writes it: "Ctrl+Super+R"; empty if it is unset.
    std::string combination = {};
    HotKeyFinding finding = HotKeyFinding::unset;
    /// Why it cannot be had, set where it is taken.
    Error why = {};
};

/// Asks for each combination of the settings and gives it back at once, or, where hot keys are only looked up
/// (SessionUse::check), who has it. `ours` are the names of those that
/// the running program has; nobody is in its way, and it is in nobody's.
std::vector<HotKeyFact> probeHotKeys(const SettingsStore& settings, HotKeys& hotKeys,
                                     const KeyboardLayout& layout, const std::vector<std::string>& ours);

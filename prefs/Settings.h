// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "prefs/KeyCombo.h"
#include "prefs/PauseChoice.h"
#include "prefs/Shortcuts.h"

class SettingsStore;

// Between the store, where combinations lie as NAMECode and NAMEFlags in control flags, and the preference
// table, which holds them as hot keys are registered. Nothing here is kept between calls.

/// A check box's key in the store, and its state.
struct ToggleValue {
    std::string key;
    bool on = false;
};

/// What the preferences panel holds.
struct PreferenceValues {
    /// In the order of shortcutRows, in control flags.
    std::array<KeyCombo, shortcutRows.size()> shortcuts;
    /// In the order in which they are stored. What is stored of others stays.
    std::vector<ToggleValue> toggles;
    PauseChoice pauses;
};

/// A mask of `controlflag` bits as `modifier` bits (platform/Modifiers.h); other bits are dropped.
std::uint32_t hotKeyFlags(std::uint32_t controlFlags);

/// The stored combination, its code cut to 16 bits, its flags as stored; empty where one of the two keys is
/// missing.
std::optional<KeyCombo> storedShortcut(const SettingsStore& store, const std::string& name);

/// Whether the key is there and not 0; `initially` where it is not there.
bool isStoredOn(const SettingsStore& store, const std::string& key, bool initially = false);

/// Puts a combination in control flags into the preference table, also the empty one.
void setHotKey(const std::string& name, KeyCombo shortcut);

/// Copies the stored combinations into the preference table. Where one is not stored, the table's entry stays
/// as it was.
void loadHotKeys(const SettingsStore& store);

/// Copies the combinations into the preference table, but for those without a key: a shortcut that was
/// cleared goes on firing until the next start.
void keepHotKeys(const PreferenceValues& values);

/// Sets all values in the store, in a fixed order. They are not yet written when this returns
/// (SettingsStore::synchronize).
void storePreferences(SettingsStore& store, const PreferenceValues& values);

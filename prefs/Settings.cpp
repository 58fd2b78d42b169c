// SPDX-License-Identifier: MIT
#include "prefs/Settings.h"

#include <cstddef>

#include "platform/Modifiers.h"
#include "platform/SettingsStore.h"
#include "prefs/PreferenceManager.h"

std::uint32_t hotKeyFlags(std::uint32_t controlFlags) {
    std::uint32_t flags = 0;
    for (const ModifierPair& pair : modifierPairs) {
        if ((controlFlags & pair.controlFlag) != 0) flags |= pair.modifier;
    }
    return flags;
}

std::optional<KeyCombo> storedShortcut(const SettingsStore& store, const std::string& name) {
    const auto code = store.integer(name + "Code");
    const auto flags = store.integer(name + "Flags");
    if (!code || !flags) return std::nullopt;
    return KeyCombo{.flags = static_cast<std::uint32_t>(*flags), .code = static_cast<std::int16_t>(*code)};
}

bool isStoredOn(const SettingsStore& store, const std::string& key, bool initially) {
    return store.integer(key).value_or(initially ? 1 : 0) != 0;
}

void setHotKey(const std::string& name, KeyCombo shortcut) {
    utils::PreferenceManager::setCode(name, shortcut.code);
    utils::PreferenceManager::setFlags(name, hotKeyFlags(shortcut.flags));
}

void loadHotKeys(const SettingsStore& store) {
    for (const ShortcutRow& row : shortcutRows) {
        const std::string name(row.name);
        if (const auto shortcut = storedShortcut(store, name)) setHotKey(name, *shortcut);
    }
}

void keepHotKeys(const PreferenceValues& values) {
    for (std::size_t i = 0; i < shortcutRows.size(); ++i) {
        const KeyCombo& shortcut = values.shortcuts[i];
        if (shortcut.code != KeyCombo().code) setHotKey(std::string(shortcutRows[i].name), shortcut);
    }
}

void storePreferences(SettingsStore& store, const PreferenceValues& values) {
    for (std::size_t i = 0; i < shortcutRows.size(); ++i) {
        const std::string name(shortcutRows[i].name);
        store.setInteger(name + "Code", values.shortcuts[i].code);
        store.setInteger(name + "Flags", values.shortcuts[i].flags);
    }
    for (const ToggleValue& toggle : values.toggles) store.setBool(toggle.key, toggle.on);
    storePauseChoice(store, values.pauses);
}

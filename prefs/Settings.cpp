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

bool isStoredOn(const SettingsStore& store, const std::string& key) {
    return store.integer(key).value_or(0) != 0;
}

void setHotKey(const std::string& name, KeyCombo shortcut) {
    utils::PreferenceManager::setCode(name, shortcut.code);
    utils::PreferenceManager::setFlags(name, hotKeyFlags(shortcut.flags));
}

void loadHotKeys(const SettingsStore& store) {
    for (const std::string name : shortcutNames) {
        if (const auto shortcut = storedShortcut(store, name)) setHotKey(name, *shortcut);
    }
}

void keepHotKeys(const PreferenceValues& values) {
    for (std::size_t i = 0; i < shortcutNames.size(); ++i) {
        if (values.shortcuts[i].code != KeyCombo().code) setHotKey(shortcutNames[i], values.shortcuts[i]);
    }
}

void storePreferences(SettingsStore& store, const PreferenceValues& values) {
    for (std::size_t i = 0; i < shortcutNames.size(); ++i) {
        const std::string name = shortcutNames[i];
        store.setInteger(name + "Code", values.shortcuts[i].code);
        store.setInteger(name + "Flags", values.shortcuts[i].flags);
    }
    if (values.checkForUpdatesOnLaunch) {
        store.setBool("checkForUpdatesOnLaunch", *values.checkForUpdatesOnLaunch);
    }
    store.setBool("launchOnLogin", values.launchOnLogin);
}

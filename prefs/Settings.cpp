// SPDX-License-Identifier: MIT
#include "prefs/Settings.h"

#include <string>

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

void loadHotKeys(const SettingsStore& store) {
    for (const std::string name : {"record", "stop", "play", "multiplePlay"}) {
        const auto code = store.integer(name + "Code");
        const auto flags = store.integer(name + "Flags");
        if (!code || !flags) continue;
        utils::PreferenceManager::setCode(name, static_cast<std::int16_t>(*code));
        utils::PreferenceManager::setFlags(name, hotKeyFlags(static_cast<std::uint32_t>(*flags)));
    }
}

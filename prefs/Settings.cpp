// SPDX-License-Identifier: MIT
#include "prefs/Settings.h"

#include <array>
#include <string>
#include <utility>

#include "platform/Modifiers.h"
#include "platform/SettingsStore.h"
#include "prefs/PreferenceManager.h"

std::uint32_t hotKeyFlags(std::uint32_t controlFlags) {
    static constexpr std::array<std::pair<std::uint32_t, std::uint32_t>, 5> pairs = {
        {{controlflag::command, modifier::command},
         {controlflag::option, modifier::option},
         {controlflag::control, modifier::control},
         {controlflag::shift, modifier::shift},
         {controlflag::functionKey, modifier::functionKey}}};
    std::uint32_t flags = 0;
    for (const auto& [control, hotKey] : pairs) {
        if ((controlFlags & control) != 0) flags |= hotKey;
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

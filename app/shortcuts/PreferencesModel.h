// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "app/shortcuts/ShortcutModel.h"
#include "app/shortcuts/ToggleModel.h"
#include "platform/Modifiers.h"

/// A shortcut as the program comes with it: the key with Control and Super.
constexpr KeyCombo initialKeyCombo(std::int16_t code) {
    return {.flags = controlflag::control | controlflag::command, .code = code};
}

/// What the preferences panel shows, also while there is no panel.
struct PreferencesModel {
    ShortcutModel record{initialKeyCombo(15)};
    ShortcutModel stop{initialKeyCombo(1)};
    ShortcutModel play{initialKeyCombo(35)};
    ShortcutModel multiplePlay{initialKeyCombo(46)};
    ToggleModel launchOnLogin;
    ToggleModel checkForUpdatesOnLaunch;
    /// False in builds without the update check: nothing of it is shown.
    bool offersUpdateCheck = true;
};

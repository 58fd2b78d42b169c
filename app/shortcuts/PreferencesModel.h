// SPDX-License-Identifier: MIT
#pragma once

#include <array>

#include "app/shortcuts/PauseModel.h"
#include "app/shortcuts/ShortcutModel.h"
#include "app/shortcuts/ToggleModel.h"
#include "app/shortcuts/Toggles.h"
#include "prefs/Shortcuts.h"

/// What the preferences panel shows, also while there is no panel.
struct PreferencesModel {
    PreferencesModel();

    /// In the order of shortcutRows.
    std::array<ShortcutModel, shortcutRows.size()> shortcuts;
    /// In the order of toggleRows.
    std::array<ToggleModel, toggleRows.size()> toggles;
    PauseModel pauses;

    // Those that are spoken of by name.
    ShortcutModel& record = shortcuts[shortcutIndex("record")];
    ShortcutModel& stop = shortcuts[shortcutIndex("stop")];
    ShortcutModel& play = shortcuts[shortcutIndex("play")];
    ShortcutModel& multiplePlay = shortcuts[shortcutIndex("multiplePlay")];
    ToggleModel& launchOnLogin = toggles[toggleIndex("launchOnLogin")];
    ToggleModel& recordModifierKeys = toggles[toggleIndex("recordModifierKeys")];
    ToggleModel& keepHistory = toggles[toggleIndex("keepHistory")];
    ToggleModel& writeHotKeys = toggles[toggleIndex("writeHotKeys")];
    ToggleModel& checkForUpdatesOnLaunch = toggles[toggleIndex("checkForUpdatesOnLaunch")];

    /// False in builds without the update check: nothing of it is shown or stored.
    bool offersUpdateCheck = true;
    /// False where hot keys need no consent: it is neither shown nor stored.
    bool offersConsent = true;
};

// SPDX-License-Identifier: MIT
#include "app/shortcuts/PreferencesModel.h"

PreferencesModel::PreferencesModel() {
    for (std::size_t i = 0; i < shortcuts.size(); ++i) shortcuts[i].setKeyCombo(shortcutRows[i].preset);
    for (std::size_t i = 0; i < toggles.size(); ++i) toggles[i].setOn(toggleRows[i].initiallyOn);
}

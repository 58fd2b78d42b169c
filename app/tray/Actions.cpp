// SPDX-License-Identifier: MIT
#include "app/tray/Actions.h"

#include <QCoreApplication>
#include <algorithm>

namespace {

/// An action without its line does not compile.
consteval bool followMenuRows() {
    for (const ActionRow& action : actionRows) {
        if (menuRows.at(menuRowNamed(action.menuItem)).kind != MenuItemKind::command) return false;
    }
    return true;
}
static_assert(followMenuRows());

struct Words {
    Q_DECLARE_TR_FUNCTIONS(Actions)
};

/// What keeps everybody from giving commands.
QString obstacleToAll(const MenuFacts& facts) {
    if (facts.screenLocked) return Words::tr("The screen is locked.");
    if (facts.gateShut) return Words::tr("Keyrill is asking something, which has to be answered first.");
    return {};
}

QString obstacleToPlaying(const MenuFacts& facts) {
    if (facts.recording) return Words::tr("A macro is being recorded.");
    return facts.hasMacro ? QString() : Words::tr("There is no macro to play yet.");
}

}  // namespace

const ActionRow* actionNamed(std::string_view name) {
    const auto* const row = std::find_if(actionRows.begin(), actionRows.end(),
                                         [name](const ActionRow& action) { return action.name == name; });
    return row == actionRows.end() ? nullptr : row;
}

std::string actionNames() {
    std::string names;
    for (const ActionRow& action : actionRows) {
        if (!names.empty()) names += ", ";
        names += action.name;
    }
    return names;
}

QString obstacleTo(const ActionRow& action, const MenuFacts& facts) {
    if (QString toAll = obstacleToAll(facts); !toAll.isEmpty()) return toAll;
    const bool records = action.menuItem == "record";
    const bool plays = action.menuItem == "play" || action.menuItem == "multiplePlay";
    const bool needsKeyboard = records || plays || action.menuItem == "macros";
    // What is typed would go into a window of the program's own, and nobody could stop it by hot key.
    if (needsKeyboard && facts.promptShown) return Words::tr("Keyrill is asking how often to play.");
    if ((records || plays) && facts.hotKeysOff)
        return Words::tr("Keyrill's hot keys are off while they are being chosen in a window of its own.");
    if (records && facts.recording) return Words::tr("A macro is being recorded already.");
    if (action.menuItem == "stop" && !facts.recording)
        return Words::tr("Nothing is being recorded or played.");
    if (action.menuItem == "saveDelay" && !facts.overlayShown) return Words::tr("Nothing is being recorded.");
    return plays ? obstacleToPlaying(facts) : QString();
}

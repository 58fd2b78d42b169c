// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>
#include <array>
#include <cstddef>
#include <string_view>

#include "app/tray/MenuFacts.h"
#include "platform/Features.h"

enum class MenuItemKind {
    command,    ///< can be chosen; app/controller/AppControllerOperations.cpp says what it does
    submenu,    ///< opens; the rows after it that are nested are its lines
    separator,  ///< a line; has neither name nor title
};

/// When an item is shown or can be chosen.
using MenuRule = bool (*)(const MenuFacts&);

namespace menurule {

constexpr bool always(const MenuFacts& /*facts*/) { return true; }
constexpr bool whileOpen(const MenuFacts& facts) { return !facts.gateShut; }
constexpr bool onceStopped(const MenuFacts& facts) { return facts.hasStopped; }
constexpr bool whileRecording(const MenuFacts& facts) { return facts.recording; }
constexpr bool unlessRecording(const MenuFacts& facts) { return !facts.recording; }
constexpr bool withTheOverlay(const MenuFacts& facts) { return facts.overlayShown; }
constexpr bool playing(const MenuFacts& facts) { return facts.hasStopped && !facts.recording; }
constexpr bool withAMacro(const MenuFacts& facts) { return whileOpen(facts) && facts.hasMacro; }
constexpr bool withAHistory(const MenuFacts& facts) { return whileOpen(facts) && facts.hasHistory; }
constexpr bool filesAllowed(const MenuFacts& facts) { return whileOpen(facts) && !facts.overlayShown; }
constexpr bool savingAllowed(const MenuFacts& facts) { return filesAllowed(facts) && facts.hasMacro; }

}  // namespace menurule

/// A line of the status menu or of one of its submenus.
struct MenuRow {
    /// By which it is spoken of, and its command found; no two are the same.
    std::string_view name = {};
    /// To be translated in menuContext.
    const char* title = "";
    MenuItemKind kind = MenuItemKind::command;
    /// Whether it is a line of the last submenu before it.
    bool isNested = false;
    /// Whether the build has it at all.
    bool isOffered = true;
    MenuRule isVisible = menurule::always;
    MenuRule isEnabled = menurule::whileOpen;
};

/// A line of the help menu: that menu can be opened or not, and its lines are always there.
constexpr MenuRow helpRow(std::string_view name, const char* title, bool isOffered = true) {
    return {.name = name,
            .title = title,
            .isNested = true,
            .isOffered = isOffered,
            .isEnabled = menurule::always};
}

constexpr MenuRow separatorRow(bool isNested = false) {
    return {.kind = MenuItemKind::separator, .isNested = isNested, .isEnabled = menurule::always};
}

inline constexpr const char* menuContext = "StatusMenu";

/// All lines, from the top.
inline constexpr std::array menuRows = {
    MenuRow{.name = "record",
            .title = QT_TRANSLATE_NOOP("StatusMenu", "Start Recording"),
            .isVisible = menurule::unlessRecording},
    MenuRow{.name = "stop",
            .title = QT_TRANSLATE_NOOP("StatusMenu", "Stop Recording"),
            .isVisible = menurule::whileRecording},
    MenuRow{.name = "saveDelay",
            .title = QT_TRANSLATE_NOOP("StatusMenu", "Save Pause"),
            .isVisible = menurule::withTheOverlay},
    MenuRow{.name = "play",
            .title = QT_TRANSLATE_NOOP("StatusMenu", "Play"),
            .isVisible = menurule::playing,
            .isEnabled = menurule::withAMacro},
    MenuRow{.name = "multiplePlay",
            .title = QT_TRANSLATE_NOOP("StatusMenu", "Play Multiple Times..."),
            .isVisible = menurule::playing,
            .isEnabled = menurule::withAMacro},
    separatorRow(),
    // Its lines come with the recordings.
    MenuRow{.name = "history",
            .title = QT_TRANSLATE_NOOP("StatusMenu", "History"),
            .kind = MenuItemKind::submenu,
            .isEnabled = menurule::withAHistory},
    MenuRow{.name = "saveMacro",
            .title = QT_TRANSLATE_NOOP("StatusMenu", "Save Macro..."),
            .isVisible = menurule::onceStopped,
            .isEnabled = menurule::savingAllowed},
    MenuRow{.name = "loadMacro",
            .title = QT_TRANSLATE_NOOP("StatusMenu", "Load Macro..."),
            .isEnabled = menurule::filesAllowed},
    MenuRow{.name = "macros", .title = QT_TRANSLATE_NOOP("StatusMenu", "Macros...")},
    separatorRow(),
    MenuRow{.name = "preferences", .title = QT_TRANSLATE_NOOP("StatusMenu", "Preferences...")},
    MenuRow{.name = "help", .title = QT_TRANSLATE_NOOP("StatusMenu", "Help"), .kind = MenuItemKind::submenu},
    helpRow("documentation", QT_TRANSLATE_NOOP("StatusMenu", "Documentation")),
    helpRow("forum", QT_TRANSLATE_NOOP("StatusMenu", "Forum")),
    helpRow("keyrillWebsite", QT_TRANSLATE_NOOP("StatusMenu", "Product Page")),
    helpRow("orlenWebsite", QT_TRANSLATE_NOOP("StatusMenu", "Maker's Website")),
    separatorRow(true),
    helpRow("support", QT_TRANSLATE_NOOP("StatusMenu", "Get Support")),
    helpRow("feedback", QT_TRANSLATE_NOOP("StatusMenu", "Send Feedback")),
    helpRow("bug", QT_TRANSLATE_NOOP("StatusMenu", "Report a Bug")),
    helpRow("status", QT_TRANSLATE_NOOP("StatusMenu", "What Works Here")),
    separatorRow(true),
    helpRow("update", QT_TRANSLATE_NOOP("StatusMenu", "Check for Updates..."), features::updateCheck),
    helpRow("about", QT_TRANSLATE_NOOP("StatusMenu", "About Keyrill")),
    separatorRow(),
    MenuRow{.name = "quit", .title = QT_TRANSLATE_NOOP("StatusMenu", "Quit"), .isEnabled = menurule::always},
};

/// Where the name stands in menuRows; it has to be there.
constexpr std::size_t menuRowNamed(std::string_view name) {
    std::size_t index = 0;
    while (menuRows.at(index).name != name) ++index;
    return index;
}

/// The same; another name does not compile.
consteval std::size_t menuIndex(std::string_view name) { return menuRowNamed(name); }

// SPDX-License-Identifier: MIT
#include "app/tray/MenuState.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>

namespace {

MenuItemState stateOf(const MenuFacts& facts, std::size_t index) { return menuState(facts).items.at(index); }

/// The items above the first line that are shown, in the menu's order.
std::string shown(const MenuFacts& facts) {
    const MenuState state = menuState(facts);
    std::string names;
    for (std::size_t i = 0; menuRows.at(i).kind != MenuItemKind::separator; ++i) {
        if (!state.items.at(i).visible) continue;
        names += std::string(names.empty() ? "" : " ") + std::string(menuRows.at(i).name);
    }
    return names;
}

}  // namespace

TEST(MenuStateTest, showsOnlyRecordAfterStartUp) { EXPECT_EQ(shown({}), "record"); }

TEST(MenuStateTest, showsStopAndSavePauseWhileRecording) {
    EXPECT_EQ(shown({.recording = true, .overlayShown = true}), "stop saveDelay");
    EXPECT_EQ(shown({.recording = true, .hasStopped = true, .overlayShown = true, .hasMacro = true}),
              "stop saveDelay");
}

TEST(MenuStateTest, showsSavePauseOnlyWithTheOverlay) { EXPECT_EQ(shown({.recording = true}), "stop"); }

TEST(MenuStateTest, showsThePlayItemsFromTheFirstStopOnAlsoWithoutAMacro) {
    EXPECT_EQ(shown({.hasStopped = true}), "record play multiplePlay");
    EXPECT_EQ(shown({.hasStopped = true, .hasMacro = true}), "record play multiplePlay");
}

TEST(MenuStateTest, hidesThePlayItemsForAMacroThatIsThereBeforeTheFirstStop) {
    EXPECT_EQ(shown({.hasMacro = true}), "record");
}

TEST(MenuStateTest, greysPlayingWhileThereIsNothingToPlay) {
    const MenuFacts without{.hasStopped = true};
    EXPECT_FALSE(stateOf(without, menuIndex("play")).enabled);
    EXPECT_FALSE(stateOf(without, menuIndex("multiplePlay")).enabled);
    EXPECT_FALSE(menuState(without).promptPlays);
    const MenuFacts with{.hasStopped = true, .hasMacro = true};
    EXPECT_TRUE(stateOf(with, menuIndex("play")).enabled);
    EXPECT_TRUE(stateOf(with, menuIndex("multiplePlay")).enabled);
    EXPECT_TRUE(menuState(with).promptPlays);
}

TEST(MenuStateTest, showsSaveFromTheFirstStopOn) {
    constexpr std::size_t save = menuIndex("saveMacro");
    EXPECT_FALSE(stateOf({}, save).visible);
    EXPECT_FALSE(stateOf({.recording = true}, save).visible);
    EXPECT_TRUE(stateOf({.hasStopped = true}, save).visible);
    EXPECT_TRUE(stateOf({.recording = true, .hasStopped = true}, save).visible);
}

TEST(MenuStateTest, greysSaveWithoutAMacroAndBothFileItemsWhileRecording) {
    constexpr std::size_t save = menuIndex("saveMacro");
    constexpr std::size_t load = menuIndex("loadMacro");
    EXPECT_FALSE(stateOf({.hasStopped = true}, save).enabled);
    EXPECT_TRUE(stateOf({.hasStopped = true, .hasMacro = true}, save).enabled);
    const MenuFacts recording{.recording = true, .overlayShown = true, .hasMacro = true};
    EXPECT_FALSE(stateOf(recording, save).enabled);
    EXPECT_FALSE(stateOf(recording, load).enabled);
    EXPECT_TRUE(stateOf({}, load).enabled);
}

TEST(MenuStateTest, greysEverythingButQuitWhileTheGateIsShut) {
    const MenuState state =
        menuState({.hasStopped = true, .hasMacro = true, .hasHistory = true, .gateShut = true});
    for (std::size_t i = 0; i < menuRows.size(); ++i) {
        const MenuRow& row = menuRows.at(i);
        // The lines of a submenu that cannot be opened are out of reach.
        if (row.isNested || row.kind == MenuItemKind::separator) continue;
        EXPECT_EQ(state.items.at(i).enabled, row.name == "quit") << row.name;
    }
    // The prompt would say that there is nothing to play.
    EXPECT_TRUE(state.promptPlays);
}

TEST(MenuStateTest, hidesTheOverlayWhileTheScreenIsLocked) {
    EXPECT_FALSE(menuState({}).overlayVisible);
    EXPECT_TRUE(menuState({.overlayShown = true}).overlayVisible);
    EXPECT_FALSE(menuState({.overlayShown = true, .screenLocked = true}).overlayVisible);
}

TEST(MenuStateTest, greysTheHistoryWhileItIsEmpty) {
    constexpr std::size_t history = menuIndex("history");
    EXPECT_EQ(stateOf({}, history), (MenuItemState{.visible = true, .enabled = false}));
    EXPECT_EQ(stateOf({.hasHistory = true}, history), (MenuItemState{.visible = true, .enabled = true}));
}

TEST(MenuRowsTest, haveEachANameOfTheirOwnAndATitle) {
    std::set<std::string_view> names;
    std::size_t items = 0;
    for (const MenuRow& row : menuRows) {
        const bool isSeparator = row.kind == MenuItemKind::separator;
        EXPECT_EQ(std::string_view(row.title).empty(), isSeparator) << row.name;
        EXPECT_EQ(row.name.empty(), isSeparator) << row.title;
        if (isSeparator) continue;
        names.insert(row.name);
        ++items;
    }
    EXPECT_EQ(names.size(), items);
}

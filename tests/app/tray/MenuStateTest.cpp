// SPDX-License-Identifier: MIT
#include "app/tray/MenuState.h"

#include <gtest/gtest.h>

#include <string>

namespace {

/// The items that are shown, in the menu's order.
std::string shown(const MenuFacts& facts) {
    const MenuState state = menuState(facts);
    std::string names;
    const auto add = [&names](const MenuItemState& item, const char* name) {
        if (item.visible) names += std::string(names.empty() ? "" : " ") + name;
    };
    add(state.record, "record");
    add(state.stop, "stop");
    add(state.saveDelay, "saveDelay");
    add(state.play, "play");
    add(state.multiplePlay, "multiplePlay");
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
    const MenuState without = menuState({.hasStopped = true});
    EXPECT_FALSE(without.play.enabled);
    EXPECT_FALSE(without.multiplePlay.enabled);
    EXPECT_FALSE(without.promptPlays);
    const MenuState with = menuState({.hasStopped = true, .hasMacro = true});
    EXPECT_TRUE(with.play.enabled);
    EXPECT_TRUE(with.multiplePlay.enabled);
    EXPECT_TRUE(with.promptPlays);
}

TEST(MenuStateTest, showsSaveFromTheFirstStopOn) {
    EXPECT_FALSE(menuState({}).saveMacro.visible);
    EXPECT_FALSE(menuState({.recording = true}).saveMacro.visible);
    EXPECT_TRUE(menuState({.hasStopped = true}).saveMacro.visible);
    EXPECT_TRUE(menuState({.recording = true, .hasStopped = true}).saveMacro.visible);
}

TEST(MenuStateTest, greysSaveWithoutAMacroAndBothFileItemsWhileRecording) {
    EXPECT_FALSE(menuState({.hasStopped = true}).saveMacro.enabled);
    EXPECT_TRUE(menuState({.hasStopped = true, .hasMacro = true}).saveMacro.enabled);
    const MenuState recording = menuState({.recording = true, .overlayShown = true, .hasMacro = true});
    EXPECT_FALSE(recording.saveMacro.enabled);
    EXPECT_FALSE(recording.loadMacro.enabled);
    EXPECT_TRUE(menuState({}).loadMacro.enabled);
}

TEST(MenuStateTest, greysEverythingWhileTheGateIsShut) {
    const MenuState state =
        menuState({.hasStopped = true, .hasMacro = true, .hasHistory = true, .gateShut = true});
    for (const MenuItemState& item :
         {state.record, state.stop, state.saveDelay, state.play, state.multiplePlay, state.history,
          state.saveMacro, state.loadMacro, state.others}) {
        EXPECT_FALSE(item.enabled);
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
    EXPECT_EQ(menuState({}).history, (MenuItemState{.visible = true, .enabled = false}));
    EXPECT_EQ(menuState({.hasHistory = true}).history, (MenuItemState{.visible = true, .enabled = true}));
}

// SPDX-License-Identifier: MIT
#include "app/tray/Actions.h"

#include <gtest/gtest.h>

#include <string>

namespace {

/// "" where the action can be carried out.
std::string obstacle(std::string_view action, const MenuFacts& facts) {
    return obstacleTo(*actionNamed(action), facts).toStdString();
}

TEST(ActionsTest, aFreshProgramOnlyRecords) {
    const MenuFacts facts;
    EXPECT_EQ(obstacle("record", facts), "");
    EXPECT_EQ(obstacle("stop", facts), "Nothing is being recorded or played.");
    EXPECT_EQ(obstacle("play", facts), "There is no macro to play yet.");
    EXPECT_EQ(obstacle("multiple", facts), "There is no macro to play yet.");
    EXPECT_EQ(obstacle("save-pause", facts), "Nothing is being recorded.");
}

TEST(ActionsTest, aRecordingCanBeStoppedAndPaused) {
    const MenuFacts facts{.recording = true, .overlayShown = true, .hasMacro = true};
    EXPECT_EQ(obstacle("record", facts), "A macro is being recorded already.");
    EXPECT_EQ(obstacle("stop", facts), "");
    EXPECT_EQ(obstacle("play", facts), "A macro is being recorded.");
    EXPECT_EQ(obstacle("multiple", facts), "A macro is being recorded.");
    EXPECT_EQ(obstacle("save-pause", facts), "");
}

TEST(ActionsTest, aRecordingThatWasLeftAtItsStartHasNoPauses) {
    const MenuFacts facts{.recording = true};
    EXPECT_EQ(obstacle("save-pause", facts), "Nothing is being recorded.");
    EXPECT_EQ(obstacle("stop", facts), "");
}

TEST(ActionsTest, aMacroFromAFileCanBePlayedBeforeTheFirstRecording) {
    const MenuFacts facts{.hasStopped = false, .hasMacro = true};
    EXPECT_EQ(obstacle("play", facts), "");
    EXPECT_EQ(obstacle("multiple", facts), "");
}

TEST(ActionsTest, nothingIsDoneBehindAQuestionOrALock) {
    const MenuFacts asking{.recording = true, .overlayShown = true, .hasMacro = true, .gateShut = true};
    MenuFacts locked = asking;
    locked.screenLocked = true;
    for (const ActionRow& action : actionRows) {
        EXPECT_EQ(obstacle(action.name, asking),
                  "Keyrill is asking something, which has to be answered first.");
        EXPECT_EQ(obstacle(action.name, locked), "The screen is locked.");
    }
}

/// Keys would go into a window of the program's own, or could not be stopped by hot key.
TEST(ActionsTest, nothingIsRecordedOrPlayedWhileThePromptOrAHotKeyIsBeingTyped) {
    const MenuFacts prompt{.hasStopped = true, .hasMacro = true, .promptShown = true};
    const MenuFacts choosing{.hasStopped = true, .hasMacro = true, .hotKeysOff = true};
    for (const char* action : {"record", "play", "multiple"}) {
        EXPECT_EQ(obstacle(action, prompt), "Keyrill is asking how often to play.");
        EXPECT_EQ(obstacle(action, choosing),
                  "Keyrill's hot keys are off while they are being chosen in a window of its own.");
    }
    EXPECT_EQ(obstacle("macros", prompt), "Keyrill is asking how often to play.");
    EXPECT_EQ(obstacle("macros", choosing), "");
    EXPECT_EQ(obstacle("stop", {.recording = true, .hotKeysOff = true}), "");
}

TEST(ActionsTest, theyAreKnownByTheirNames) {
    EXPECT_EQ(actionNames(), "record, stop, play, multiple, save-pause, macros");
    EXPECT_EQ(actionNamed("multiple")->menuItem, "multiplePlay");
    EXPECT_EQ(actionNamed("quit"), nullptr);
    EXPECT_EQ(actionNamed(""), nullptr);
}

}  // namespace

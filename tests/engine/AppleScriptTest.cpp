// SPDX-License-Identifier: MIT
#include "engine/AppleScript.h"

#include "engine/EngineTest.h"

namespace {

class AppleScriptTest : public EngineTest {};

TEST_F(AppleScriptTest, runsTheTextAsItStands) {
    AppleScript::runAppleScript("delay 1 -- \xE2\x8C\x9B\n");
    AppleScript::runAppleScript("");
    EXPECT_EQ(runs(), (std::vector<std::string>{"delay 1 -- \xE2\x8C\x9B\n", ""}));
}

TEST_F(AppleScriptTest, keepsTheStrokesOfTheRunWhileAMacroIsRecorded) {
    state().recordingMacro = MacroManager::createMacro();
    AppleScript::runAppleScript("");
    EXPECT_TRUE(platform().eventMonitor.keepsOwnStrokes());
}

TEST_F(AppleScriptTest, dropsTheStrokesOfTheRunOtherwise) {
    platform().eventMonitor.setKeepsOwnStrokes(true);
    AppleScript::runAppleScript("");
    EXPECT_FALSE(platform().eventMonitor.keepsOwnStrokes());
}

TEST_F(AppleScriptTest, saysNothingAboutAnError) {
    platform().scripting.failNextCall({"Expected end of line but found identifier.", ""});
    AppleScript::runAppleScript("no script");
    EXPECT_EQ(runs().size(), 1U);
}

TEST_F(AppleScriptTest, isNoPlaybackOfItsOwn) {
    AppleScript::runAppleScript("");
    EXPECT_EQ(platform().scripting.playbacksStarted(), 0);
}

}  // namespace

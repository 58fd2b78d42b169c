// SPDX-License-Identifier: MIT
#include "engine/EngineTest.h"
#include "engine/KeyRecorder.h"
#include "engine/MacroPlayer.h"
#include "platform/Modifiers.h"

namespace {

class RequestPlayTest : public EngineTest {
  protected:
    static void modifiersBecome(std::uint32_t mask) {
        handleKeyEvent({KeyEventKind::modifiersChanged, 0, 0, mask});
    }
};

TEST_F(RequestPlayTest, playsAtOnceWhenNoModifierIsDown) {
    state().currentMacro = macroWithScript("beep");
    requestPlay(1);
    EXPECT_EQ(runs().size(), 1U);
    EXPECT_FALSE(state().playPending);
}

TEST_F(RequestPlayTest, notesTheCountAndPlaysOnceAllTheSame) {
    state().currentMacro = macroWithScript("beep");
    requestPlay(7);
    EXPECT_EQ(state().pendingPlayCount, 7U);
    EXPECT_EQ(runs().size(), 1U);
}

TEST_F(RequestPlayTest, waitsForTheLastModifier) {
    state().currentMacro = macroWithScript("beep");
    modifiersBecome(modifier::control | modifier::command);
    requestPlay(1);
    EXPECT_TRUE(state().playPending);
    modifiersBecome(modifier::control);
    EXPECT_EQ(runs().size(), 0U);
    modifiersBecome(0);
    EXPECT_EQ(runs().size(), 1U);
    EXPECT_FALSE(state().playPending);
}

TEST_F(RequestPlayTest, twoThatWaitPlayOnce) {
    state().currentMacro = macroWithScript("beep");
    modifiersBecome(modifier::control);
    requestPlay(5);
    requestPlay(5);
    modifiersBecome(0);
    modifiersBecome(modifier::control);
    modifiersBecome(0);
    EXPECT_EQ(runs().size(), 1U);
}

TEST_F(RequestPlayTest, aScriptWaitsForTheLastModifierAndIsPlayedAsItAsks) {
    state().currentMacro = macroWithScript("current");
    modifiersBecome(modifier::control);
    int begun = 0;
    requestPlay({.script = "beep", .options = {.times = {2}, .speed = 4}, .begins = [&] { ++begun; }});
    EXPECT_EQ(begun, 0);
    modifiersBecome(0);
    EXPECT_EQ(begun, 1);
    EXPECT_EQ(runs(), (std::vector<std::string>{"beep", "beep"}));
    EXPECT_EQ(platform().scripting.speeds(), (std::vector<double>{4, 4}));
    EXPECT_EQ(state().currentMacro->script(), "current");
    requestPlay(1);
    EXPECT_EQ(runs().back(), "current");
}

TEST_F(RequestPlayTest, ofTwoThatWaitTheLastIsPlayed) {
    state().currentMacro = macroWithScript("current");
    modifiersBecome(modifier::control);
    requestPlay({.script = "script"});
    requestPlay(1);
    modifiersBecome(0);
    EXPECT_EQ(runs(), std::vector<std::string>{"current"});
    modifiersBecome(modifier::control);
    requestPlay(1);
    requestPlay({.script = "script"});
    modifiersBecome(0);
    EXPECT_EQ(runs().back(), "script");
    EXPECT_EQ(runs().size(), 2U);
}

TEST_F(RequestPlayTest, aScriptNeedsNoCurrentMacro) {
    requestPlay({.script = "beep"});
    EXPECT_EQ(runs(), std::vector<std::string>{"beep"});
}

TEST_F(RequestPlayTest, playsTheMacroThatIsCurrentWhenTheModifiersAreUp) {
    state().currentMacro = macroWithScript("old");
    modifiersBecome(modifier::control);
    requestPlay(1);
    state().currentMacro = macroWithScript("new");
    modifiersBecome(0);
    EXPECT_EQ(runs(), std::vector<std::string>{"new"});
}

TEST_F(RequestPlayTest, isForgottenWithoutACurrentMacro) {
    requestPlay(1);
    EXPECT_FALSE(state().playPending);
    modifiersBecome(modifier::control);
    requestPlay(1);
    modifiersBecome(0);
    EXPECT_FALSE(state().playPending);

    state().currentMacro = macroWithScript("late");
    modifiersBecome(0);
    EXPECT_EQ(runs().size(), 0U);
}

TEST_F(RequestPlayTest, clearsTheMarksAlsoWhenItWaits) {
    modifiersBecome(modifier::control);
    markTable();
    requestPlay(1);
    EXPECT_FALSE(tableIsMarked());
}

TEST_F(RequestPlayTest, isNotClearedByOtherCommands) {
    state().currentMacro = macroWithScript("beep");
    modifiersBecome(modifier::control);
    requestPlay(1);
    toggleRecording();
    stopRecording();
    promptMultiplePlay();
    playTimes(0);
    EXPECT_TRUE(state().playPending);
}

}  // namespace

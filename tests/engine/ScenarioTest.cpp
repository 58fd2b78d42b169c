// SPDX-License-Identifier: MIT
#include "engine/Scenario.h"

namespace {

using ScenarioTest = Scenario;
using ScenarioDeathTest = Scenario;

TEST_F(ScenarioTest, recordTypeStopPlayPlaysWhatWasTypedAndNotTheHotKeys) {
    recordTyping("a b\n");
    EXPECT_EQ(currentMacro(), "a b↩");
    user.strikesPlay();
    EXPECT_EQ(runs(), (std::vector<std::string>{R"(tell application "System Events"
	key code (0) using {}
delay 0.01
	key code (49) using {}
delay 0.01
	key code (11) using {}
delay 0.01
	key code (36) using {}
delay 0.01
end tell
)"}));
}

TEST_F(ScenarioTest, theRecordHotKeyEndsTheRecordingThatItStarted) {
    user.strikesRecord();
    user.types("a");
    user.strikesRecord();
    EXPECT_FALSE(isRecording());
    EXPECT_EQ(currentMacro(), "a");
}

TEST_F(ScenarioTest, shiftedAndChordedKeysAreRecordedWithTheirModifiers) {
    user.strikesRecord();
    user.strikes({key::shift, key::a});
    user.strikes({key::super, key::s});
    user.strikes({key::control, key::alt, key::f5});
    EXPECT_EQ(overlay(), "A<⌘+s><⌥+⌃+F5>");
}

TEST_F(ScenarioTest, aLetterTypedWithCapsLockIsRecordedAsAShiftedOne) {
    user.strikes({key::capsLock});
    recordTyping("a");
    EXPECT_EQ(currentMacro(), "A");
    user.strikesPlay();
    EXPECT_EQ(runs(), (std::vector<std::string>{R"(tell application "System Events"
	key code (0) using {shift down}
delay 0.01
end tell
)"}));
}

TEST_F(ScenarioTest, aLetterTypedWithCapsLockAndShiftIsRecordedAsASmallOne) {
    user.strikes({key::capsLock});
    user.strikesRecord();
    user.strikes({key::shift, key::a});
    user.strikesStop();
    EXPECT_EQ(currentMacro(), "a");
    user.strikesPlay();
    EXPECT_EQ(runs(), (std::vector<std::string>{R"(tell application "System Events"
	key code (0) using {}
delay 0.01
end tell
)"}));
}

TEST_F(ScenarioTest, capsLockDoesNotHoldBackAPlay) {
    recordTyping("a");
    user.strikes({key::capsLock});
    user.strikesPlay();
    EXPECT_EQ(scriptsRun(), 1U);
}

TEST_F(ScenarioTest, aHeldKeyIsRecordedOncePerRepeat) {
    user.strikesRecord();
    user.holds(key::a, 3);
    user.releases(key::a);
    EXPECT_EQ(overlay(), "aaaa");
}

TEST_F(ScenarioTest, pausesAreRecordedOnDemand) {
    user.strikesRecord();
    user.waits(1.5);
    menu.savesPause();
    user.types("a");
    user.waits(0.25);
    menu.savesPause();
    EXPECT_EQ(overlay(), "<⌛ 1.50>a<⌛ 0.25>");
}

TEST_F(ScenarioTest, holdingThePlayCombinationPlaysNothing) {
    recordTyping("a");
    user.presses(key::control, key::super, key::p);
    user.holds(key::p, 10);
    EXPECT_EQ(scriptsRun(), 0U);
}

TEST_F(ScenarioTest, holdPlayCombinationReleaseKeyReleaseModifiersPlaysOnce) {
    recordTyping("a");
    user.presses(key::control, key::super);
    user.holds(key::p, 3);
    user.releases(key::p);
    EXPECT_EQ(scriptsRun(), 0U);
    user.releases(key::super);
    EXPECT_EQ(scriptsRun(), 0U);
    user.releases(key::control);
    EXPECT_EQ(scriptsRun(), 1U);
}

TEST_F(ScenarioTest, releaseModifiersFirstThenThePlayKeyPlaysOnce) {
    recordTyping("a");
    user.presses(key::control, key::super, key::p);
    user.releases(key::control, key::super);
    EXPECT_EQ(scriptsRun(), 0U);
    user.releases(key::p);
    EXPECT_EQ(scriptsRun(), 1U);
}

TEST_F(ScenarioTest, pressPlayTwiceBeforeLettingGoOfCtrlPlaysOnce) {
    recordTyping("a");
    user.presses(key::control, key::super);
    user.strikes({key::p});
    user.strikes({key::p});
    user.releases(key::super, key::control);
    EXPECT_EQ(scriptsRun(), 1U);
}

TEST_F(ScenarioTest, playFromTheMenuDoesNotWaitForModifiers) {
    recordTyping("a");
    user.presses(key::shift);
    menu.plays();
    EXPECT_EQ(scriptsRun(), 1U);
}

TEST_F(ScenarioTest, aPendingPlayIsReleasedAlsoDuringARecording) {
    recordTyping("a");
    user.presses(key::control, key::super);
    user.strikes({key::p});
    user.strikes({key::r});
    EXPECT_TRUE(isRecording());
    EXPECT_EQ(scriptsRun(), 0U);
    user.releases(key::super, key::control);
    EXPECT_EQ(scriptsRun(), 1U);
    EXPECT_TRUE(isRecording());
}

TEST_F(ScenarioTest, theStrokesOfAPlayDuringARecordingAreRecorded) {
    recordTyping("a");
    platform().scripting.duringEachRun([this] { platform().keyboard.scriptStrikes(key::a, 0); });
    user.strikesRecord();
    user.types("b");
    user.strikesPlay();
    user.types("b");
    EXPECT_EQ(overlay(), "bab");
}

TEST_F(ScenarioTest, theStrokesOfAnyOtherPlayAreNot) {
    recordTyping("a");
    platform().scripting.duringEachRun([this] { platform().keyboard.scriptStrikes(key::a, 0); });
    user.strikesPlay();
    recordTyping("b");
    EXPECT_EQ(currentMacro(), "b");
}

TEST_F(ScenarioTest, aMacroMayPlayAHotKeyAndFiresNothing) {
    recordTyping("a");
    platform().journal.clear();
    platform().scripting.duringEachRun(
        [this] { platform().keyboard.scriptStrikes(key::r, modifier::control | modifier::command); });
    user.strikesPlay();
    EXPECT_EQ(gui.messages(), FakeController::Messages{});
    EXPECT_FALSE(isRecording());
}

TEST_F(ScenarioTest, aHotKeyPressedWhileAMacroPlaysActsAfterTheLastRun) {
    recordTyping("a");
    std::size_t runsWhenItActed = 0;
    platform().scripting.duringEachRun([&] {
        EXPECT_FALSE(isRecording());
        if (scriptsRun() == 1) user.strikesRecord();
        runsWhenItActed = scriptsRun();
    });
    prompt.isConfirmedWith("3");
    EXPECT_EQ(runsWhenItActed, 3U);
    EXPECT_TRUE(isRecording());
}

TEST_F(ScenarioTest, whatIsTypedWhileAMacroPlaysDuringARecordingIsRecordedInOrder) {
    recordTyping("a");
    user.strikesRecord();
    platform().scripting.duringEachRun([this] { user.types("x"); });
    user.strikesPlay();
    user.types("b");
    EXPECT_EQ(overlay(), "xb");
}

TEST_F(ScenarioTest, theStopHotKeyEndsThePlayback) {
    recordTyping("a");
    platform().scripting.duringEachRun([this] {
        if (scriptsRun() == 2) user.strikesStop();
    });
    prompt.isConfirmedWith("100");
    EXPECT_EQ(scriptsRun(), 2U);
}

TEST_F(ScenarioTest, escapeHeldForThreeTenthsOfASecondEndsThePlayback) {
    recordTyping("a");
    platform().scripting.duringEachRun([this] {
        if (scriptsRun() == 1) user.presses(key::escape);
        user.waits(0.14);
    });
    prompt.isConfirmedWith("100");
    EXPECT_EQ(scriptsRun(), 3U);
}

TEST_F(ScenarioTest, escapeOutsideAPlaybackIsAnOrdinaryKey) {
    user.strikesRecord();
    user.presses(key::escape);
    user.waits(1);
    user.releases(key::escape);
    user.strikesStop();
    EXPECT_EQ(currentMacro(), "⎋");
    prompt.isConfirmedWith("2");
    EXPECT_EQ(scriptsRun(), 2U);
}

TEST_F(ScenarioTest, thePromptPlaysAsOftenAsItSays) {
    recordTyping("a");
    prompt.isConfirmedWith("3");
    EXPECT_EQ(scriptsRun(), 3U);
    prompt.isConfirmedWith("2x");
    EXPECT_EQ(scriptsRun(), 5U);
    for (const char* text : {"0", "-2", "abc", ""}) prompt.isConfirmedWith(text);
    EXPECT_EQ(scriptsRun(), 5U);
}

TEST_F(ScenarioTest, aScriptThatFailsStopsNoRepetition) {
    recordTyping("a");
    platform().scripting.failNextCall({"System Events got an error.", ""});
    prompt.isConfirmedWith("2");
    EXPECT_EQ(scriptsRun(), 2U);
}

TEST_F(ScenarioTest, anEmptyRecordingLeavesCurrentMacroAndHistory) {
    recordTyping("a");
    recordTyping("");
    EXPECT_EQ(currentMacro(), "a");
    EXPECT_EQ(gui.history().size(), 1U);
}

TEST_F(ScenarioTest, aLongRecordingHasAShortTitleAndAFullOverlay) {
    recordTyping("abcdefghijklmnopqrstu");
    EXPECT_EQ(currentMacro(), "abcdefghij...lmnopqrstu");
    EXPECT_EQ(overlay(), "abcdefghijklmnopqrstu");
}

TEST_F(ScenarioTest, whilePreferencesAreOpenHotKeysAreSwallowedAndTheMenuWorks) {
    recordTyping("a");
    platform().journal.clear();
    state().hotKeysEnabled = false;
    user.strikesRecord();
    user.strikesStop();
    user.strikesPlay();
    user.strikesMultiplePlay();
    EXPECT_EQ(gui.messages(), FakeController::Messages{});
    EXPECT_EQ(scriptsRun(), 0U);

    menu.records();
    user.strikesRecord();
    user.types("b");
    menu.stops();
    menu.plays();
    EXPECT_EQ(currentMacro(), "b");
    EXPECT_EQ(scriptsRun(), 1U);
}

TEST_F(ScenarioTest, keysOutsideARecordingChangeOnlyTheModifiers) {
    user.presses(key::shift, key::a);
    EXPECT_EQ(state().currentModifiers, modifier::shift);
    EXPECT_EQ(gui.messages(), FakeController::Messages{});
    user.releases(key::a, key::shift);
    EXPECT_EQ(state().currentModifiers, 0U);
}

TEST_F(ScenarioTest, savingPreferencesWithoutChangesRegistersAllAgain) {
    const auto before = platform().hotKeys.registered();
    registerHotKeys();
    EXPECT_EQ(before.size(), shortcutRows.size());
    EXPECT_EQ(platform().hotKeys.registered(), before);
    EXPECT_EQ(hotKeyCalls().size(), 4 * shortcutRows.size());
    user.strikesRecord();
    EXPECT_TRUE(isRecording());
}

TEST_F(ScenarioTest, whileAQuestionIsOpenNothingIsRecordedAndHotKeysAreDropped) {
    user.strikesRecord();
    platform().eventMonitor.setWithheld(true);
    user.types("a");
    user.strikesStop();
    platform().eventMonitor.setWithheld(false);
    user.types("b");
    EXPECT_TRUE(isRecording());
    EXPECT_EQ(overlay(), "b");
}

TEST_F(ScenarioTest, whileTheScreenIsLockedNothingIsRecorded) {
    user.strikesRecord();
    platform().keyboard.lockScreen(true);
    user.types("secret");
    platform().keyboard.lockScreen(false);
    user.types("a");
    EXPECT_EQ(overlay(), "a");
}

TEST_F(ScenarioTest, whileAnotherProgramHasTheKeyboardNothingIsRecorded) {
    user.strikesRecord();
    EXPECT_TRUE(platform().eventMonitor.isRecording());
    platform().eventMonitor.programHoldsKeyboard(true);
    user.types("secret");
    platform().eventMonitor.programHoldsKeyboard(false);
    user.types("a");
    EXPECT_EQ(overlay(), "a");
    user.strikesStop();
    EXPECT_FALSE(platform().eventMonitor.isRecording());
}

TEST_F(ScenarioTest, afterTheUpdateNoticeWasFollowedStopPutsTheMenuBack) {
    recordTyping("a");
    platform().journal.clear();
    gui.setFollowsUpdateNotice(true);
    user.strikesRecord();
    user.types("b");
    user.strikesStop();
    EXPECT_EQ(gui.messages(), (FakeController::Messages{"showRecordingGui()", "hideRecordingGui()"}));
    EXPECT_EQ(currentMacro(), "a");
}

TEST_F(ScenarioTest, playWithoutAMacroIsNothing) {
    user.strikesPlay();
    EXPECT_EQ(scriptsRun(), 0U);
    EXPECT_FALSE(state().playPending);
}

TEST_F(ScenarioDeathTest, playFromTheMenuAfterAnEmptyRecordingEndsTheProcess) {
    user.strikesRecord();
    user.strikesStop();
    EXPECT_DEATH(menu.plays(), "px != 0");
}

TEST_F(ScenarioDeathTest, aPromptWithoutAMacroEndsTheProcess) {
    EXPECT_DEATH(prompt.isConfirmedWith("3"), "px != 0");
}

}  // namespace

// SPDX-License-Identifier: MIT
#include "engine/ModifierHolds.h"

#include "engine/Scenario.h"

namespace {

class ModifierHoldsTest : public Scenario {
  protected:
    ModifierHoldsTest() { state().recordsModifierKeys = true; }
};

TEST_F(ModifierHoldsTest, aTapOfAModifierIsItsKey) {
    user.strikesRecord();
    user.strikes({key::super});
    user.types("a");
    user.strikes({key::shift});
    user.strikesStop();
    EXPECT_EQ(state().currentMacro->script(), R"(tell application "System Events"
	key code (55) using {}
delay 0.01
	key code (0) using {}
delay 0.01
	key code (56) using {}
delay 0.01
end tell
)");
}

TEST_F(ModifierHoldsTest, areNotKeptUntilTheUserWantsThem) {
    state().recordsModifierKeys = false;
    user.strikesRecord();
    user.strikes({key::super});
    user.presses(key::alt);
    user.types("\t\t");
    user.releases(key::alt);
    user.strikesStop();
    EXPECT_EQ(currentMacro(), "<⌥+⇥><⌥+⇥>");
}

TEST_F(ModifierHoldsTest, aModifierThatIsHeldOverSeveralKeysIsHeldOverThem) {
    user.strikesRecord();
    user.types("a");
    user.presses(key::alt);
    user.types("\t\t");
    user.releases(key::alt);
    user.types("a");
    user.strikesStop();
    EXPECT_EQ(state().currentMacro->script(), R"(tell application "System Events"
	key code (0) using {}
delay 0.01
	key down option
delay 0.01
	key code (48) using {option down}
delay 0.01
	key code (48) using {option down}
delay 0.01
	key up option
delay 0.01
	key code (0) using {}
delay 0.01
end tell
)");
    EXPECT_EQ(overlay(), "a<⌥▼><⌥+⇥><⌥+⇥><⌥▲>a");
}

TEST_F(ModifierHoldsTest, overOneKeyItIsACombinationAsEver) {
    user.strikesRecord();
    user.strikes({key::control, key::s});
    user.strikes({key::control, key::shift, key::s});
    user.strikesStop();
    EXPECT_EQ(currentMacro(), "<⌃+s><⌃+S>");
}

TEST_F(ModifierHoldsTest, overTheRepeatsOfAKeyItIsHeld) {
    user.strikesRecord();
    user.presses(key::control);
    user.holds(key::s, 2);
    user.releases(key::s, key::control);
    user.strikesStop();
    EXPECT_EQ(currentMacro(), "<⌃▼><⌃+s><⌃+s><⌃+s><⌃▲>");
}

TEST_F(ModifierHoldsTest, holdsMayLieInOneAnother) {
    user.strikesRecord();
    user.presses(key::control, key::shift);
    user.types("aa");
    user.releases(key::shift);
    user.types("b");
    user.releases(key::control);
    user.strikesStop();
    EXPECT_EQ(currentMacro(), "<⌃▼><⇧▼><⌃+A><⌃+A><⇧▲><⌃+b><⌃▲>");
}

TEST_F(ModifierHoldsTest, holdsMayOverlap) {
    user.strikesRecord();
    user.presses(key::control, key::shift);
    user.types("aa");
    user.releases(key::control);
    user.types("b");
    user.releases(key::shift);
    user.strikesStop();
    EXPECT_EQ(currentMacro(), "<⇧▼><⌃▼><⌃+A><⌃+A><⌃▲>B<⇧▲>");
}

TEST_F(ModifierHoldsTest, aHoldThatBeginsWithinAnotherAndOutlastsItKeepsItsPlace) {
    user.strikesRecord();
    user.presses(key::control);
    user.types("a");
    user.presses(key::shift);
    user.types("bb");
    user.releases(key::control);
    user.types("c");
    user.releases(key::shift);
    user.strikesStop();
    EXPECT_EQ(currentMacro(), "<⌃▼><⌃+a><⇧▼><⌃+B><⌃+B><⌃▲>C<⇧▲>");
}

TEST_F(ModifierHoldsTest, theModifiersOfHotKeysAreNoTaps) {
    recordTyping("a");
    user.strikesRecord();
    user.strikesPlay();
    user.strikesMultiplePlay();
    user.types("b");
    user.strikesStop();
    EXPECT_EQ(currentMacro(), "b");
}

TEST_F(ModifierHoldsTest, theOneModifierOfAHotKeyIsNoTap) {
    ::setHotKey("multiplePlay", {.flags = controlflag::command, .code = key::f5});
    registerHotKeys();
    user.strikesRecord();
    user.strikes({key::super, key::f5});
    user.types("b");
    user.strikesStop();
    EXPECT_EQ(currentMacro(), "b");
}

TEST_F(ModifierHoldsTest, severalModifiersTogetherAreNoTaps) {
    user.strikesRecord();
    user.strikes({key::control, key::alt});
    user.presses(key::control, key::shift);
    user.releases(key::control, key::shift);
    user.strikesStop();
    EXPECT_EQ(currentMacro(), "none");
}

TEST_F(ModifierHoldsTest, whatIsHeldForLongIsNoTap) {
    user.strikesRecord();
    user.presses(key::super);
    user.waits(0.5);
    user.releases(key::super);
    user.presses(key::control);
    user.waits(0.501);
    user.releases(key::control);
    user.strikesStop();
    EXPECT_EQ(currentMacro(), "Super");
}

TEST_F(ModifierHoldsTest, capsLockIsNoTap) {
    user.strikesRecord();
    user.strikes({key::capsLock});
    user.types("a");
    user.strikesStop();
    EXPECT_EQ(currentMacro(), "A");
}

/// The lock types small letters with Shift: what is recorded has no Shift to hold.
TEST_F(ModifierHoldsTest, aShiftThatTheLockUndoesIsNotHeld) {
    user.strikes({key::capsLock});
    user.strikesRecord();
    user.presses(key::shift);
    user.types("ab");
    user.releases(key::shift);
    user.strikesStop();
    EXPECT_EQ(currentMacro(), "ab");
}

TEST_F(ModifierHoldsTest, whatIsStillHeldAtTheEndIsRecordedAsCombinations) {
    user.strikesRecord();
    user.presses(key::control);
    user.types("ab");
    user.strikes({key::super, key::s});
    user.releases(key::control);
    EXPECT_EQ(currentMacro(), "<⌃+a><⌃+b>");
}

TEST_F(ModifierHoldsTest, underALockNothingIsKept) {
    user.strikesRecord();
    platform().desktop.lockScreen(true);
    user.strikes({key::shift});
    platform().desktop.lockScreen(false);
    user.types("a");
    user.strikesStop();
    EXPECT_EQ(currentMacro(), "a");
}

TEST_F(ModifierHoldsTest, withPausesAHoldIsAsLongAsItWas) {
    state().pauseChoice.kind = PauseRecording::asTyped;
    user.strikesRecord();
    user.types("a");
    user.waits(0.3);
    user.presses(key::alt);
    user.waits(0.2);
    user.types("\t");
    user.waits(0.4);
    user.types("\t");
    user.waits(0.6);
    user.releases(key::alt);
    user.strikesStop();
    // The 0.01 s of the press are taken from the hold's end: only there it is known to be one.
    EXPECT_EQ(currentMacro(), "a<⌛ 0.48><⌥▼><⌥+⇥><⌛ 0.38><⌥+⇥><⌛ 0.57><⌥▲>");
}

}  // namespace

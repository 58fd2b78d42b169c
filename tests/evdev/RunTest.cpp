// SPDX-License-Identifier: MIT
#include "evdev/EvdevWorld.h"
#include "platform/run/RunWatch.h"

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

/// Runs of scripts, while nothing is recorded unless a test says so.
class EvdevRunTest : public EvdevTest {
  protected:
    void SetUp() override {
        EvdevTest::SetUp();
        monitor().setRecording(false);
        delivered();
    }
    RunWatch& watch() { return monitor().runWatch(); }
    void ownTap(std::uint8_t keycode) {
        watch().expectOwnKey(keycode, true);
        watch().expectOwnKey(keycode, false);
    }
};

TEST_P(EvdevRunTest, theKeyboardIsHeardDuringARunAndWhatItDidComesAfterIt) {
    watch().runStarts();
    press({key::a});
    watch().drain();
    EXPECT_TRUE(watch().handsHoldKeys());
    EXPECT_EQ(delivered(), Log{});
    release({key::a});
    watch().drain();
    EXPECT_FALSE(watch().handsHoldKeys());
    watch().runEnds();
    EXPECT_EQ(delivered(), (Log{"down 0 a", "up 0"}));
    tap(key::s);
    EXPECT_EQ(delivered(), Log{});
}

TEST_P(EvdevRunTest, aHeldEscapeEndsAPlayback) {
    watch().startPlayback();
    watch().runStarts();
    press({key::escape});
    watch().drain();
    EXPECT_FALSE(watch().isCancelled());
    EXPECT_EQ(watch().cancelDeadline(), evdevWorld().clock().now() + milliseconds(300));
    evdevWorld().advance(milliseconds(299));
    EXPECT_FALSE(watch().isCancelled());
    evdevWorld().advance(milliseconds(1));
    EXPECT_TRUE(watch().isCancelled());
}

TEST_P(EvdevRunTest, anEscapeThatWasHeldLongEnoughIsHeededThoughItIsReadLate) {
    watch().startPlayback();
    watch().runStarts();
    press({key::escape});
    evdevWorld().advance(milliseconds(300));
    release({key::escape});
    watch().drain();
    EXPECT_TRUE(watch().isCancelled());
}

TEST_P(EvdevRunTest, aTappedEscapeOnOneOfTwoKeyboardsIsNoStop) {
    const auto second = evdevWorld().input().plug(1);
    watch().startPlayback();
    watch().runStarts();
    evdevWorld().key(*second, key::escape, 1);
    press({key::escape});
    evdevWorld().advance(milliseconds(100));
    release({key::escape});
    evdevWorld().key(*second, key::escape, 0);
    watch().drain();
    evdevWorld().advance(seconds(5));
    EXPECT_FALSE(watch().isCancelled());
    EXPECT_FALSE(watch().handsHoldKeys());
}

TEST_P(EvdevRunTest, aHotKeyThatCancelsEndsAPlayback) {
    world().hotKeys().request({.id = 2, .name = "stop", .keyCode = key::f5, .cancelsPlayback = true});
    watch().startPlayback();
    watch().runStarts();
    tap(key::f5);
    watch().drain();
    EXPECT_TRUE(watch().isCancelled());
    watch().runEnds();
    EXPECT_EQ(delivered(), (Log{"pressed 2", "released 2"}));
}

TEST_P(EvdevRunTest, keysHeldForTwoSecondsBeforeTheRunAreLeftOvers) {
    monitor().setRecording(true);
    press({key::a});
    delivered();
    evdevWorld().advance(milliseconds(1999));
    EXPECT_EQ(watch().leftOvers(evdevWorld().clock().now()), KeycodeSet());
    evdevWorld().advance(milliseconds(1));
    EXPECT_EQ(watch().leftOvers(evdevWorld().clock().now()), KeycodeSet().set(xkey::a));
}

TEST_P(EvdevRunTest, theScriptsOwnStrokesAreDeliveredOnlyWhileTheyAreKept) {
    watch().runStarts();
    ownTap(xkey::a);
    watch().runEnds();
    EXPECT_EQ(delivered(), Log{});
    monitor().setRecording(true);
    monitor().setKeepsOwnStrokes(true);
    watch().runStarts();
    ownTap(xkey::a);
    watch().runEnds();
    EXPECT_EQ(delivered(), (Log{"down 0 a", "up 0"}));
}

TEST_P(EvdevRunTest, theScriptsOwnStrokesAreNoHotKeysAndNoHands) {
    world().hotKeys().request({.id = 2, .name = "stop", .keyCode = key::f5, .cancelsPlayback = true});
    watch().startPlayback();
    watch().runStarts();
    watch().expectOwnKey(xkey::f5, true);
    watch().drain();
    EXPECT_FALSE(watch().isCancelled());
    EXPECT_FALSE(watch().handsHoldKeys());
    watch().runEnds();
    EXPECT_EQ(delivered(), Log{});
}

TEST_P(EvdevRunTest, aKeyThatTheScriptLeavesDownIsUpAfterTheRun) {
    monitor().setRecording(true);
    monitor().setKeepsOwnStrokes(true);
    watch().runStarts();
    watch().expectOwnKey(xkey::shift, true);
    watch().runEnds();
    EXPECT_EQ(delivered(), (Log{"modifiers 0x200", "modifiers 0x0"}));
}

TEST_P(EvdevRunTest, aDesktopThatHasGoneIsLost) {
    EXPECT_FALSE(watch().isLost());
    evdevWorld().loseDesktop();
    EXPECT_TRUE(watch().isLost());
}

TEST_P(EvdevRunTest, theWatchKnowsWhichKeysHandsHold) {
    watch().runStarts();
    press({key::shift});
    watch().drain();
    EXPECT_TRUE(watch().handsHold(xkey::shift));
    EXPECT_FALSE(watch().handsHold(xkey::a));
    release({key::shift});
    watch().drain();
    EXPECT_FALSE(watch().handsHold(xkey::shift));
}

TEST_P(EvdevRunTest, aLockedScreenEndsAPlayback) {
    bool locked = false;
    monitor().endPlaysWhen([&locked] { return locked; });
    watch().drain();
    EXPECT_FALSE(watch().isCancelled());
    locked = true;
    watch().drain();
    EXPECT_TRUE(watch().isCancelled());
}

INSTANTIATE_TEST_SUITE_P(Evdev, EvdevRunTest, testing::Values(&makeEvdevWorld));

}  // namespace

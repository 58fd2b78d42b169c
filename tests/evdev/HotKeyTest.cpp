// SPDX-License-Identifier: MIT
#include "evdev/EvdevWorld.h"
#include "platform/EventSource.h"
#include "platform/monitor/KeyGrab.h"
#include "platform/run/RunWatch.h"

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

/// The desktop tells of hot keys too, a little after the keyboard.
class EvdevHotKeyTest : public EvdevTest {
  protected:
    static constexpr HotKeyId record = 1;
    static constexpr KeyGrab f5{.keycode = xkey::f5};

    void SetUp() override {
        EvdevTest::SetUp();
        prepare();
        request(record, "record", key::f5, 0);
        monitor().setRecording(false);
        delivered();
    }
    /// What is so before the hot key is asked for.
    virtual void prepare() {}
    void desktopTells(bool press) { monitor().desktopTells(f5, press); }
};

TEST_P(EvdevHotKeyTest, outsideARecordingTheDesktopTells) {
    desktopTells(true);
    EXPECT_EQ(delivered(), Log{"pressed 1"});
    desktopTells(false);
    EXPECT_EQ(delivered(), Log{"released 1"});
    EXPECT_NE(world().hotKeys().lastPressTime(), 0U);
}

TEST_P(EvdevHotKeyTest, theDesktopsRepeatsOfAHeldHotKeyAreOnePress) {
    for (int i = 0; i < 5; ++i) desktopTells(true);
    desktopTells(false);
    desktopTells(false);
    EXPECT_EQ(delivered(), (Log{"pressed 1", "released 1"}));
}

TEST_P(EvdevHotKeyTest, duringARecordingWhatTheKeyboardHasToldIsNotToldTwice) {
    monitor().setRecording(true);
    press({key::f5});
    desktopTells(true);
    release({key::f5});
    desktopTells(false);
    EXPECT_EQ(delivered(), (Log{"pressed 1", "released 1"}));
}

TEST_P(EvdevHotKeyTest, noRepeatOfAHotKeyThatTheKeyboardHasToldIsAPress) {
    monitor().setRecording(true);
    press({key::f5});
    for (int i = 0; i < 3; ++i) desktopTells(true);
    release({key::f5});
    desktopTells(false);
    EXPECT_EQ(delivered(), (Log{"pressed 1", "released 1"}));
    desktopTells(true);
    desktopTells(false);
    EXPECT_EQ(delivered(), (Log{"pressed 1", "released 1"}));
}

TEST_P(EvdevHotKeyTest, duringARecordingAKeyboardThatIsNotOpenMayPressOneToo) {
    monitor().setRecording(true);
    tap(key::a);
    desktopTells(true);
    desktopTells(false);
    EXPECT_EQ(delivered(), (Log{"down 0 a", "up 0", "pressed 1", "released 1"}));
}

TEST_P(EvdevHotKeyTest, theHotKeyThatStopsARecordingDoesNotStartTheNext) {
    world().hotKeys().install([this](HotKeyId) { monitor().setRecording(false); }, {});
    monitor().setRecording(true);
    tap(key::f5);
    delivered();
    int pressed = 0;
    world().hotKeys().install([&pressed](HotKeyId) { ++pressed; }, {});
    evdevWorld().advance(milliseconds(16));
    desktopTells(true);
    desktopTells(false);
    delivered();
    EXPECT_EQ(pressed, 0);
    // The next one is meant.
    desktopTells(true);
    delivered();
    EXPECT_EQ(pressed, 1);
}

TEST_P(EvdevHotKeyTest, whatTheDesktopNeverToldIsForgotten) {
    monitor().setRecording(true);
    tap(key::f5);
    delivered();
    monitor().setRecording(false);
    evdevWorld().advance(milliseconds(2001));
    desktopTells(true);
    EXPECT_EQ(delivered(), Log{"pressed 1"});
}

TEST_P(EvdevHotKeyTest, aHotKeyPressedBeforeARecordingIsReleasedInIt) {
    desktopTells(true);
    EXPECT_EQ(delivered(), Log{"pressed 1"});
    evdevWorld().calls().of(*evdevWorld().keyboard()).down.set(xkey::f5);
    monitor().setRecording(true);
    release({key::f5});
    desktopTells(false);
    EXPECT_EQ(delivered(), Log{"released 1"});
}

TEST_P(EvdevHotKeyTest, aCombinationThatIsNotOursIsNone) {
    monitor().desktopTells({.keycode = xkey::a}, true);
    monitor().desktopTells({.keycode = xkey::f5, .modifiers = xmask::control}, true);
    monitor().desktopTells({.keycode = xkey::a}, false);
    EXPECT_EQ(delivered(), Log{});
}

TEST_P(EvdevHotKeyTest, withheldHotKeysOfTheDesktopAreDropped) {
    monitor().setWithheld(true);
    desktopTells(true);
    desktopTells(false);
    EXPECT_EQ(delivered(), Log{});
}

TEST_P(EvdevHotKeyTest, oneThatCancelsEndsAPlaybackThoughItIsWithheld) {
    world().hotKeys().request({.id = record, .name = "stop", .keyCode = key::f5, .cancelsPlayback = true});
    monitor().runWatch().startPlayback();
    monitor().setWithheld(true);
    desktopTells(true);
    EXPECT_TRUE(monitor().runWatch().isCancelled());
}

TEST_P(EvdevHotKeyTest, whatTheDesktopForgotIsTakenAgainAndIsUp) {
    desktopTells(true);
    EXPECT_EQ(delivered(), Log{"pressed 1"});
    evdevWorld().grabber().forgetAll();
    monitor().desktopForgot();
    ASSERT_EQ(evdevWorld().grabber().taken().size(), 1U);
    EXPECT_EQ(evdevWorld().grabber().taken().front().keycode, f5.keycode);
    desktopTells(true);
    EXPECT_EQ(delivered(), Log{"pressed 1"});
}

TEST_P(EvdevHotKeyTest, aDesktopThatIsListenedToIsReadInARunToo) {
    /// Tells of one press.
    class Desktop final : public EventSource {
      public:
        explicit Desktop(evdev::EvdevEventMonitor& monitor) : m_monitor(monitor) {}
        int fileDescriptor() const override { return -1; }
        void dispatch() override {
            if (!std::exchange(m_hasTold, true)) m_monitor.desktopTells(f5, true);
        }

      private:
        evdev::EvdevEventMonitor& m_monitor;
        bool m_hasTold = false;
    };
    world().hotKeys().request({.id = record, .name = "stop", .keyCode = key::f5, .cancelsPlayback = true});
    Desktop desktop(monitor());
    monitor().listenTo(desktop);
    monitor().runWatch().startPlayback();
    monitor().runWatch().runStarts();
    monitor().runWatch().drain();
    EXPECT_TRUE(monitor().runWatch().isCancelled());
    monitor().runWatch().runEnds();
    EXPECT_EQ(delivered(), Log{"pressed 1"});
}

/// One that the desktop's user decides.
class EvdevUsersHotKeyTest : public EvdevHotKeyTest {
  protected:
    void prepare() override { evdevWorld().grabber().leaveToUser(); }
    void decide(std::optional<KeyGrab> keys) {
        monitor().desktopAnswers(f5, {.refusal = {}, .trigger = "words", .keys = keys});
    }
};

TEST_P(EvdevUsersHotKeyTest, itIsSeenInTheStreamAsWhatTheUserChose) {
    decide(KeyGrab{.keycode = xkey::a});
    monitor().setRecording(true);
    tap(key::f5);
    EXPECT_EQ(delivered(), (Log{"down 96", "up 96"}));
    tap(key::a);
    desktopTells(true);
    desktopTells(false);
    EXPECT_EQ(delivered(), (Log{"pressed 1", "released 1"}));
}

TEST_P(EvdevUsersHotKeyTest, whereNobodyKnowsItsKeysTheDesktopTells) {
    decide(std::nullopt);
    monitor().setRecording(true);
    desktopTells(true);
    desktopTells(false);
    EXPECT_EQ(delivered(), (Log{"pressed 1", "released 1"}));
}

TEST_P(EvdevUsersHotKeyTest, theRunsOwnStrokeOfItFiresNothing) {
    decide(f5);
    RunWatch& run = monitor().runWatch();
    run.runStarts();
    EXPECT_FALSE(run.liftHotKey(xkey::f5, 0));
    run.expectOwnKey(xkey::f5, true);
    run.expectOwnKey(xkey::f5, false);
    desktopTells(true);
    desktopTells(false);
    run.runEnds();
    EXPECT_EQ(delivered(), Log{});
    // The next one is the user's.
    desktopTells(true);
    EXPECT_EQ(delivered(), Log{"pressed 1"});
}

/// Where the desktop may leave out the end of a press, and tells of no repeats.
class EvdevLostReleaseTest : public EvdevHotKeyTest {
  protected:
    void prepare() override { evdevWorld().grabber().loseReleases(); }
};

TEST_P(EvdevLostReleaseTest, theNextPressIsOneMore) {
    desktopTells(true);
    EXPECT_EQ(delivered(), Log{"pressed 1"});
    desktopTells(true);
    EXPECT_EQ(delivered(), (Log{"released 1", "pressed 1"}));
    desktopTells(false);
    EXPECT_EQ(delivered(), Log{"released 1"});
}

/// A hot key that plays, with Control and Super, told by the desktop.
class EvdevPlayTest : public EvdevTest {
  protected:
    static constexpr KeyGrab combination{.keycode = xkey::f5, .modifiers = xmask::control | xmask::super};

    void SetUp() override {
        EvdevTest::SetUp();
        monitor().setRecording(false);
        world().hotKeys().request({.id = 1,
                                   .name = "play",
                                   .keyCode = key::f5,
                                   .modifiers = modifier::control | modifier::command,
                                   .startsPlayback = true});
        delivered();
    }
    void desktopTells(bool press) { monitor().desktopTells(combination, press); }
};

TEST_P(EvdevPlayTest, itsModifiersAreThoseThatHandsHold) {
    auto& answers = evdevWorld().calls().of(*evdevWorld().keyboard());
    answers.down.set(xkey::control).set(xkey::super).set(xkey::f5);
    desktopTells(true);
    EXPECT_EQ(delivered(), (Log{"modifiers 0x1100", "pressed 1"}));
    desktopTells(false);
    EXPECT_EQ(delivered(), Log{"released 1"});
    // However long they are held.
    evdevWorld().advance(seconds(5));
    EXPECT_EQ(delivered(), Log{});
    EXPECT_TRUE(monitor().runWatch().handsHold(xkey::control));
    release({key::control});
    EXPECT_EQ(delivered(), Log{"modifiers 0x100"});
    evdevWorld().key(*evdevWorld().keyboard(), key::super, 0);
    EXPECT_EQ(delivered(), Log{"modifiers 0x0"});
    // Nothing is heard any more.
    tap(key::a);
    EXPECT_EQ(delivered(), Log{});
}

TEST_P(EvdevPlayTest, whereHandsHoldNothingAnyMoreItWaitsForNothing) {
    desktopTells(true);
    desktopTells(false);
    EXPECT_EQ(delivered(),
              (Log{"modifiers 0x1100", "modifiers 0x100", "modifiers 0x0", "pressed 1", "released 1"}));
}

TEST_P(EvdevPlayTest, withoutKeyboardsItsModifiersAreUpAQuarterOfASecondAfterIt) {
    evdevWorld().keyboard().reset();
    evdevWorld().opener().fail();
    desktopTells(true);
    evdevWorld().advance(seconds(1));
    EXPECT_EQ(delivered(), (Log{"modifiers 0x1100", "pressed 1"}));
    desktopTells(false);
    evdevWorld().advance(milliseconds(249));
    EXPECT_EQ(delivered(), Log{"released 1"});
    evdevWorld().advance(milliseconds(1));
    EXPECT_EQ(delivered(), (Log{"modifiers 0x100", "modifiers 0x0"}));
}

TEST_P(EvdevPlayTest, whereItsEndIsLostItIsUpAfterTwoSeconds) {
    evdevWorld().keyboard().reset();
    evdevWorld().opener().fail();
    evdevWorld().grabber().loseReleases();
    desktopTells(true);
    evdevWorld().advance(milliseconds(1999));
    EXPECT_EQ(delivered(), (Log{"modifiers 0x1100", "pressed 1"}));
    evdevWorld().advance(milliseconds(1));
    EXPECT_EQ(delivered(), (Log{"modifiers 0x100", "modifiers 0x0", "released 1"}));
    // Should it have been held all the time.
    desktopTells(false);
    EXPECT_EQ(delivered(), Log{});
}

INSTANTIATE_TEST_SUITE_P(Evdev, EvdevLostReleaseTest, testing::Values(&makeEvdevWorld));
INSTANTIATE_TEST_SUITE_P(Evdev, EvdevPlayTest, testing::Values(&makeEvdevWorld));
INSTANTIATE_TEST_SUITE_P(Evdev, EvdevUsersHotKeyTest, testing::Values(&makeEvdevWorld));
INSTANTIATE_TEST_SUITE_P(Evdev, EvdevHotKeyTest, testing::Values(&makeEvdevWorld));

}  // namespace

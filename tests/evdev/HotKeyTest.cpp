// SPDX-License-Identifier: MIT
#include "evdev/EvdevWorld.h"
#include "platform/monitor/KeyGrab.h"

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
        request(record, "record", key::f5, 0);
        monitor().setRecording(false);
        delivered();
    }
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

TEST_P(EvdevHotKeyTest, duringARecordingTheKeyboardTellsAndTheDesktopIsIgnored) {
    monitor().setRecording(true);
    press({key::f5});
    desktopTells(true);
    release({key::f5});
    desktopTells(false);
    EXPECT_EQ(delivered(), (Log{"pressed 1", "released 1"}));
    // Another keyboard than ours may have done it.
    desktopTells(true);
    desktopTells(false);
    EXPECT_EQ(delivered(), Log{});
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

TEST_P(EvdevHotKeyTest, whileTheScreenIsLockedTheDesktopsHotKeysAreDropped) {
    monitor().setScreenLocked(true);
    desktopTells(true);
    desktopTells(false);
    EXPECT_EQ(delivered(), Log{});
}

INSTANTIATE_TEST_SUITE_P(Evdev, EvdevHotKeyTest, testing::Values(&makeEvdevWorld));

}  // namespace

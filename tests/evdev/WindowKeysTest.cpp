// SPDX-License-Identifier: MIT
//
// Recordings of what a window of ours gets, where the keyboards may not be read.
#include "platform/WindowKeys.h"

#include "evdev/EvdevWorld.h"
#include "platform/run/RunWatch.h"

namespace {

using std::chrono::milliseconds;
using Access = EventMonitor::Access;

class EvdevWindowKeysTest : public EvdevTest {
  protected:
    void SetUp() override {
        EvdevTest::SetUp();
        monitor().setRecording(false);
        evdevWorld().opener().fail();
        monitor().observeAccess([this](Access access, const std::optional<Error>&) { m_access = access; });
        monitor().setRecording(true);
        delivered();
    }
    WindowKeys& window() { return *monitor().windowKeys(); }
    void tell(WindowKey::Kind kind, std::uint8_t keycode, std::uint32_t modifiers = 0) {
        window().key({.kind = kind, .keycode = keycode, .modifiers = modifiers});
    }
    void pressThere(std::uint8_t keycode, std::uint32_t modifiers = 0) {
        tell(WindowKey::Kind::press, keycode, modifiers);
    }
    void releaseThere(std::uint8_t keycode, std::uint32_t modifiers = 0) {
        tell(WindowKey::Kind::release, keycode, modifiers);
    }
    void tapThere(std::uint8_t keycode, std::uint32_t modifiers = 0) {
        pressThere(keycode, modifiers);
        releaseThere(keycode, modifiers);
    }
    std::optional<Access> access() const { return m_access; }

  private:
    std::optional<Access> m_access;
};

TEST_P(EvdevWindowKeysTest, areRecordedOnceTheyAreAskedFor) {
    EXPECT_EQ(access(), Access::refused);
    tapThere(xkey::a);
    EXPECT_EQ(delivered(), Log{});
    window().begin();
    tapThere(xkey::a);
    EXPECT_EQ(delivered(), (Log{"down 0 a", "up 0"}));
    EXPECT_EQ(access(), Access::given);
}

/// The window may close next, and end the recording.
TEST_P(EvdevWindowKeysTest, areDeliveredBeforeTheWindowTellsAnythingElse) {
    window().begin();
    int presses = 0;
    ASSERT_TRUE(monitor().install(
        [&presses](const KeyEvent& event) { presses += event.kind == KeyEventKind::keyDown ? 1 : 0; }));
    pressThere(xkey::a);
    EXPECT_EQ(presses, 1);
}

TEST_P(EvdevWindowKeysTest, haveTheModifiersThatAreHeldThere) {
    window().begin();
    pressThere(xkey::shift);
    tapThere(xkey::a, xmask::shift);
    releaseThere(xkey::shift, xmask::shift);
    EXPECT_EQ(delivered(), (Log{"modifiers 0x200", "down 0 A", "up 0", "modifiers 0x0"}));
}

TEST_P(EvdevWindowKeysTest, areShapedByALockThatWasSwitchedElsewhere) {
    window().begin();
    tapThere(xkey::a, xmask::capsLock);
    EXPECT_EQ(delivered(), (Log{"modifiers 0x400", "down 0 A", "modifiers 0x0", "up 0"}));
    tapThere(xkey::a);
    EXPECT_EQ(delivered(), (Log{"down 0 a", "up 0"}));
}

TEST_P(EvdevWindowKeysTest, repeatAsOftenAsTheWindowTells) {
    window().begin();
    pressThere(xkey::a);
    evdevWorld().advance(milliseconds(5000));
    tell(WindowKey::Kind::repeat, xkey::a);
    tell(WindowKey::Kind::repeat, xkey::a);
    releaseThere(xkey::a);
    EXPECT_EQ(delivered(), (Log{"down 0 a", "repeat 0 a", "repeat 0 a", "up 0"}));
}

TEST_P(EvdevWindowKeysTest, areUpWhenTheWindowHasLostTheKeyboard) {
    window().begin();
    pressThere(xkey::shift);
    pressThere(xkey::a, xmask::shift);
    delivered();
    window().leave();
    EXPECT_EQ(delivered(), (Log{"up 0", "modifiers 0x0"}));
    releaseThere(xkey::a);
    EXPECT_EQ(delivered(), Log{});
}

/// As of a combination that the desktop has taken.
TEST_P(EvdevWindowKeysTest, areNothingWhereTheirPressWasAnothers) {
    window().begin();
    releaseThere(xkey::r);
    EXPECT_EQ(delivered(), Log{});
}

TEST_P(EvdevWindowKeysTest, areTheOnlyOnesThoughKeyboardsMayBeReadLater) {
    window().begin();
    evdevWorld().opener().fail(false);
    const auto second = evdevWorld().input().plug(1);
    delivered();
    press({key::b});
    evdevWorld().key(*second, key::s, 1);
    EXPECT_EQ(delivered(), Log{});
}

TEST_P(EvdevWindowKeysTest, endWithTheRecording) {
    window().begin();
    monitor().setRecording(false);
    tapThere(xkey::a);
    EXPECT_EQ(delivered(), Log{});
    monitor().setRecording(true);
    tapThere(xkey::a);
    EXPECT_EQ(delivered(), Log{});
}

TEST_P(EvdevWindowKeysTest, areNoneWhereNothingIsRecorded) {
    monitor().setRecording(false);
    window().begin();
    tapThere(xkey::a);
    EXPECT_EQ(delivered(), Log{});
}

TEST_P(EvdevWindowKeysTest, ofARunAreNotTheUsers) {
    window().begin();
    RunWatch& watch = monitor().runWatch();
    watch.runStarts();
    watch.expectOwnKey(xkey::a, true);
    watch.expectOwnKey(xkey::a, false);
    watch.runEnds();
    tapThere(xkey::a);
    tapThere(xkey::b);
    tapThere(xkey::a);
    EXPECT_EQ(delivered(), (Log{"down 11 b", "up 11", "down 0 a", "up 0"}));
}

TEST_P(EvdevWindowKeysTest, ofARunIntoAnotherWindowAreNotAwaitedForLong) {
    window().begin();
    RunWatch& watch = monitor().runWatch();
    watch.runStarts();
    watch.expectOwnKey(xkey::a, true);
    watch.expectOwnKey(xkey::a, false);
    watch.runEnds();
    evdevWorld().advance(milliseconds(2001));
    tapThere(xkey::a);
    EXPECT_EQ(delivered(), (Log{"down 0 a", "up 0"}));
}

TEST_P(EvdevWindowKeysTest, thatAreAHotKeyAreThat) {
    request(7, "hot", key::s, modifier::control);
    window().begin();
    pressThere(xkey::control);
    tapThere(xkey::s, xmask::control);
    EXPECT_EQ(delivered(), (Log{"modifiers 0x1000", "pressed 7", "released 7"}));
}

/// With a hot key that plays, of which the desktop tells alone.
class EvdevWindowKeysAfterAPlayTest : public EvdevWindowKeysTest {
  protected:
    void SetUp() override {
        EvdevWindowKeysTest::SetUp();
        world().hotKeys().request({.id = 7,
                                   .name = "play",
                                   .keyCode = key::s,
                                   .modifiers = modifier::control | modifier::shift,
                                   .startsPlayback = true});
        window().begin();
    }
    void desktopTells(bool press) {
        monitor().desktopTells({.keycode = xkey::s, .modifiers = combination}, press);
    }

    static constexpr std::uint16_t combination = xmask::control | xmask::shift;
};

TEST_P(EvdevWindowKeysAfterAPlayTest, haveTheModifiersThatTheWindowTells) {
    pressThere(xkey::control);
    pressThere(xkey::shift, xmask::control);
    desktopTells(true);
    desktopTells(false);
    releaseThere(xkey::shift, combination);
    delivered();
    tapThere(xkey::a, xmask::control);
    EXPECT_EQ(delivered(), (Log{"modifiers 0x1000", "down 0 a", "up 0"}));
    releaseThere(xkey::control, xmask::control);
    tapThere(xkey::a);
    EXPECT_EQ(delivered(), (Log{"modifiers 0x0", "down 0 a", "up 0"}));
}

/// Nor would they keep the play waiting.
TEST_P(EvdevWindowKeysAfterAPlayTest, tellThatHandsAreUpThoughTheDesktopDoesNot) {
    desktopTells(true);
    EXPECT_EQ(delivered(), (Log{"modifiers 0x1200", "pressed 7"}));
    tapThere(xkey::a);
    EXPECT_EQ(delivered(), (Log{"modifiers 0x200", "modifiers 0x0", "down 0 a", "up 0"}));
    EXPECT_FALSE(monitor().runWatch().handsHold(xkey::control));
    EXPECT_FALSE(monitor().runWatch().handsHold(xkey::shift));
}

/// They came before: the window had another order, or none.
TEST_P(EvdevWindowKeysAfterAPlayTest, letHandsHoldWhatIsInForce) {
    desktopTells(true);
    delivered();
    tapThere(xkey::a, combination);
    releaseThere(xkey::shift, combination);
    EXPECT_EQ(delivered(), (Log{"down 0 A", "up 0"}));
    EXPECT_TRUE(monitor().runWatch().handsHold(xkey::control));
}

/// Of several, each of which lets guess its own.
TEST_P(EvdevWindowKeysAfterAPlayTest, endTheGuessOfAllHotKeysBefore) {
    world().hotKeys().request({.id = 8,
                               .name = "macro",
                               .keyCode = key::a,
                               .modifiers = modifier::control,
                               .startsPlayback = true});
    desktopTells(true);
    monitor().desktopTells({.keycode = xkey::a, .modifiers = xmask::control}, true);
    delivered();
    tapThere(xkey::b, xmask::control);
    EXPECT_EQ(delivered(), (Log{"modifiers 0x200", "modifiers 0x0", "down 11 b", "up 11"}));
}

INSTANTIATE_TEST_SUITE_P(Evdev, EvdevWindowKeysAfterAPlayTest, testing::Values(&makeEvdevWorld));
INSTANTIATE_TEST_SUITE_P(Evdev, EvdevWindowKeysTest, testing::Values(&makeEvdevWorld));

}  // namespace

// SPDX-License-Identifier: MIT
#include "platform/KeyCodes.h"
#include "platform/Modifiers.h"
#include "x11/watch/X11Test.h"

namespace {

constexpr std::uint16_t controlSuper = xmask::control | xmask::super;

class X11HotKeysTest : public X11Test {
  protected:
    void requestAll() {
        request(1, "record", 15);
        request(2, "stop", 1);
        request(3, "play", 35);
        request(4, "multiplePlay", 46);
    }
    /// The program has taken in each key before the next one moves.
    void slowly(std::initializer_list<std::pair<std::uint8_t, bool>> keys) {
        for (const auto& [key, press] : keys) {
            press ? hands().press(key) : hands().release(key);
            world().settle();
        }
    }
    HotKeyStatus status(HotKeyId id) { return world().hotKeys().state(id).status; }
};

TEST_F(X11HotKeysTest, aGrabOfAnotherProgramRefusesThatOneByNameAndTheOthersWork) {
    const CoreClient other(world().display());
    ASSERT_TRUE(other.grabKey(xkey::p, controlSuper));
    requestAll();
    ASSERT_EQ(status(3), HotKeyStatus::refused);
    EXPECT_EQ(world().hotKeys().state(3).error,
              (Error{"Ctrl+Super+P cannot be used: another program holds it.",
                     "Choose another combination, or free it in the program that holds it."}));
    for (const std::uint8_t key : {std::uint8_t{27}, xkey::s, xkey::p, xkey::m}) {
        hands().stroke({xkey::control, xkey::super, key});
    }
    EXPECT_EQ(delivered("pressed"), (Log{"pressed 1", "pressed 2", "pressed 4"}));
}

TEST_F(X11HotKeysTest, aRefusedCombinationLeavesNothingBehind) {
    CoreClient first(world().display());
    // Of the four sets of locks another program holds one.
    ASSERT_TRUE(first.grabKey(xkey::p, controlSuper | xmask::numLock));
    EXPECT_EQ(request(3, "play", 35).status, HotKeyStatus::refused);
    const CoreClient second(world().display());
    EXPECT_TRUE(second.grabKey(xkey::p, controlSuper));
    EXPECT_TRUE(second.grabKey(xkey::p, controlSuper | xmask::capsLock));
    EXPECT_TRUE(second.grabKey(xkey::p, controlSuper | xmask::capsLock | xmask::numLock));
}

TEST_F(X11HotKeysTest, locksDoNotKeepAHotKeyFromFiring) {
    request(3, "play", 35);
    for (const unsigned locks : {0x00U, 0x02U, 0x10U, 0x12U}) {
        hands().lock(0x12, false);
        hands().lock(static_cast<std::uint8_t>(locks), true);
        hands().stroke({xkey::control, xkey::super, xkey::p});
        EXPECT_EQ(delivered("pressed"), Log{"pressed 3"}) << locks;
    }
}

TEST_F(X11HotKeysTest, capsLockByItsOwnKeyDoesNotKeepItFromFiring) {
    request(3, "play", 35);
    hands().tap(xkey::capsLock);
    hands().stroke({xkey::control, xkey::super, xkey::p});
    hands().tap(xkey::capsLock);
    EXPECT_EQ(delivered("pressed"), Log{"pressed 3"});
}

TEST_F(X11HotKeysTest, theApplicationGetsNothingOfAHotKey) {
    CoreClient application(world().display());
    request(3, "play", 35);
    hands().stroke({xkey::control, xkey::super, xkey::p});
    hands().tap(xkey::a);
    EXPECT_EQ(delivered("pressed"), Log{"pressed 3"});
    EXPECT_EQ(application.presses(xkey::p), 0);
    EXPECT_EQ(application.presses(xkey::a), 1);
}

TEST_F(X11HotKeysTest, aKeyTypedWhileTheHotKeyIsStillDownReachesTheApplication) {
    CoreClient application(world().display());
    request(1, "record", 15);
    slowly({{xkey::control, true}, {xkey::super, true}, {xkey::r, true}});
    slowly({{xkey::control, false}, {xkey::super, false}});
    slowly({{xkey::a, true}, {xkey::a, false}, {xkey::r, false}, {xkey::r, true}, {xkey::r, false}});
    EXPECT_EQ(application.presses(xkey::a), 1);
    EXPECT_EQ(application.presses(xkey::r), 1);
    EXPECT_EQ(delivered(), (Log{"mask 0x1000", "mask 0x1100", "pressed 1", "mask 0x100", "mask 0x0",
                                "down 0 a 0x0", "up 0", "released 1", "down 15 r 0x0", "up 15"}));
}

TEST_F(X11HotKeysTest, itsLetterReachesTheApplicationAlsoWhereTheReleaseHasNotBeenSeenYet) {
    CoreClient application(world().display());
    request(1, "record", 15);
    for (int i = 1; i <= 20; ++i) {
        slowly({{xkey::control, true}, {xkey::super, true}, {xkey::r, true}});
        hands().release(xkey::super);
        hands().release(xkey::control);
        hands().release(xkey::r);
        hands().tap(xkey::r);
        hands().tap(xkey::a);
        hands().finish();
        ASSERT_EQ(delivered("down"), (Log{"down 15 r 0x0", "down 0 a 0x0"}));
        ASSERT_EQ(application.presses(xkey::r), i);
        ASSERT_EQ(application.presses(xkey::a), i);
    }
}

/// The press that it is asked about waits for it, and all others behind it, but not for long.
TEST_F(X11HotKeysTest, aProgramThatHangsKeepsNobodyFromTyping) {
    CoreClient application(world().display());
    request(1, "record", 15);
    slowly({{xkey::control, true}, {xkey::super, true}, {xkey::r, true}});
    EXPECT_EQ(delivered("pressed"), Log{"pressed 1"});
    for (const std::uint8_t key : {xkey::super, xkey::control, xkey::r}) hands().release(key);
    // Nobody turns the loop from here on.
    for (const std::uint8_t key : {xkey::r, xkey::a, xkey::r, xkey::b}) hands().tap(key);
    hands().finish();
    EXPECT_TRUE(eventually([&] { return application.presses(xkey::b) == 1; }));
    EXPECT_EQ(application.presses(xkey::a), 1);
    EXPECT_EQ(application.presses(xkey::r), 1);
    // It comes to itself.
    delivered();
    hands().stroke({xkey::control, xkey::super, xkey::r});
    EXPECT_EQ(delivered("pressed"), Log{"pressed 1"});
    EXPECT_EQ(application.presses(xkey::r), 1);
}

TEST_F(X11HotKeysTest, theRepeatsOfAHotKeyAreNoLettersOnceItsModifiersAreUp) {
    CoreClient application(world().display());
    request(1, "record", 15);
    slowly({{xkey::control, true}, {xkey::super, true}});
    world().press(key::r);
    world().settle();
    slowly({{xkey::super, false}, {xkey::control, false}});
    world().holdUntilRepeats(key::r, 5);
    world().settle();
    world().holdUntilRepeats(key::r, 5);
    world().release(key::r);
    slowly({{xkey::a, true}, {xkey::a, false}});
    EXPECT_EQ(application.presses(xkey::r), 0);
    EXPECT_EQ(application.presses(xkey::a), 1);
    EXPECT_EQ(delivered("down"), Log{"down 0 a 0x0"});
}

TEST_F(X11HotKeysTest, aHeldHotKeyFiresOnceHoweverOftenItRepeats) {
    request(3, "play", 35);
    hands().press(xkey::control);
    hands().press(xkey::super);
    world().holdUntilRepeats(key::p, 5);
    world().release(key::p);
    hands().release(xkey::control);
    hands().release(xkey::super);
    EXPECT_EQ(delivered(),
              (Log{"mask 0x1000", "mask 0x1100", "pressed 3", "released 3", "mask 0x100", "mask 0x0"}));
}

TEST_F(X11HotKeysTest, aSecondHotKeyWorksWhileTheFirstIsHeld) {
    requestAll();
    hands().press(xkey::control);
    hands().press(xkey::super);
    hands().press(xkey::p);
    hands().press(xkey::s);
    hands().release(xkey::p);
    hands().release(xkey::s);
    hands().release(xkey::super);
    hands().release(xkey::control);
    EXPECT_EQ(delivered(), (Log{"mask 0x1000", "mask 0x1100", "pressed 3", "pressed 2", "released 3",
                                "released 2", "mask 0x1000", "mask 0x0"}));
}

TEST_F(X11HotKeysTest, twoThatChangePlacesEndUpRegistered) {
    request(1, "record", 15);
    request(2, "stop", 1);
    EXPECT_EQ(request(1, "record", 1).error->message,
              "Ctrl+Super+S cannot be used: Keyrill uses it for something else.");
    EXPECT_EQ(request(2, "stop", 15).status, HotKeyStatus::registered);
    EXPECT_EQ(status(1), HotKeyStatus::registered);
    hands().stroke({xkey::control, xkey::super, xkey::s});
    EXPECT_EQ(delivered("pressed"), Log{"pressed 1"});
}

TEST_F(X11HotKeysTest, aKeyThatNoKeyboardHasIsRefusedAndNeverReachesTheServer) {
    CoreClient application(world().display());
    const HotKeyState state = request(3, "play", 66);
    EXPECT_EQ(state.status, HotKeyStatus::refused);
    EXPECT_EQ(state.error->message, "Ctrl+Super+Key 66 cannot be used: this desktop has no such key.");
    EXPECT_EQ(request(2, "stop", keycode::none).status, HotKeyStatus::unset);
    hands().stroke({xkey::control, xkey::super, xkey::a});
    EXPECT_EQ(delivered("pressed"), Log{});
    EXPECT_EQ(application.presses(xkey::a), 1);
}

TEST_F(X11HotKeysTest, theSecondGroupChangesNothing) {
    outputOf({"setxkbmap", "us,ru"}, {{"DISPLAY", world().display()}});
    request(3, "play", 35);
    hands().lockGroup(1);
    hands().stroke({xkey::control, xkey::super, xkey::p});
    EXPECT_EQ(delivered("pressed"), Log{"pressed 3"});
}

TEST_F(X11HotKeysTest, aGrabFollowsTheSuperKeyToItsNewModifier) {
    request(3, "play", 35);
    // Alt and Super change places: what was grabbed as Control and Super keys is another set of bits or keys.
    outputOf({"setxkbmap", "us", "-option", "altwin:swap_alt_win"}, {{"DISPLAY", world().display()}});
    ASSERT_TRUE(loopUntil([&] {
        hands().stroke({xkey::control, xkey::alt, xkey::p});
        hands().finish();
        return count("pressed 3") > 0;
    }));
}

TEST_F(X11HotKeysTest, theTimeOfThePressIsTheServers) {
    CoreClient application(world().display());
    request(3, "play", 35);
    hands().tap(xkey::a);
    hands().stroke({xkey::control, xkey::super, xkey::p});
    hands().tap(xkey::b);
    ASSERT_EQ(delivered("pressed"), Log{"pressed 3"});
    const auto& events = application.events();
    EXPECT_GE(world().hotKeys().lastPressTime(), events.front().time);
    EXPECT_LE(world().hotKeys().lastPressTime(), events.back().time);
}

}  // namespace

// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>

#include "display/Hands.h"
#include "display/Typist.h"
#include "platform/KeyCodes.h"
#include "platform/Modifiers.h"
#include "support/Keys.h"
#include "x11/press/InjectorTest.h"

namespace {

using Lines = std::vector<std::string>;

/// What an application gets of strokes.
class StrokeTest : public InjectorTest {
  protected:
    Lines received() { return wordsOf(m_client.events()); }
    /// Waits until that many events have come, or a while without: while a run is open, its last strokes may
    /// still be on their way.
    Lines received(std::size_t count) {
        eventually([&] { return m_client.events().size() >= count; });
        return received();
    }

  private:
    CoreClient m_client{display()};
};

TEST_F(StrokeTest, aKeyGoesDownAndUp) {
    EXPECT_EQ(wordsOf(run()->stroke(key::a, 0)), "going");
    EXPECT_EQ(received(), (Lines{"press 38 0x0", "release 38 0x0"}));
}

TEST_F(StrokeTest, theLowestKeyOfTheServerIsAKeyToo) {
    ASSERT_TRUE(run()->stroke(keycode::evdevBase, 0));
    EXPECT_EQ(received(), (Lines{"press 8 0x0", "release 8 0x0"}));
}

TEST_F(StrokeTest, modifiersGoDownBeforeAndUpAfterInTheOtherOrder) {
    ASSERT_TRUE(run()->stroke(key::a, modifier::control | modifier::command));
    EXPECT_EQ(received(), (Lines{"press 37 0x0", "press 133 0x4", "press 38 0x44", "release 38 0x44",
                                 "release 133 0x44", "release 37 0x4"}));
}

TEST_F(StrokeTest, eachModifierIsTheOneOfTheKeymap) {
    const auto session = run();
    const std::vector<std::pair<std::uint32_t, std::string>> rows = {{modifier::shift, "press 38 0x1"},
                                                                     {modifier::control, "press 38 0x4"},
                                                                     {modifier::option, "press 38 0x8"},
                                                                     {modifier::command, "press 38 0x40"}};
    std::size_t sent = 0;
    for (const auto& [modifiers, words] : rows) {
        ASSERT_TRUE(session->stroke(key::a, modifiers));
        sent += 4;
        EXPECT_EQ(received(sent).at(sent - 3), words);
    }
}

TEST_F(StrokeTest, swappedAltAndSuperKeysAreFollowed) {
    command({"setxkbmap", "us", "-option", "altwin:swap_lalt_lwin"});
    ASSERT_TRUE(run()->stroke(key::a, modifier::option));
    EXPECT_EQ(received().at(0), "press 133 0x0");
    EXPECT_EQ(received().at(1), "press 38 0x8");
}

TEST_F(StrokeTest, theThirdLevelChooserIsHeldForItsCodes) {
    command({"setxkbmap", "de"});
    ASSERT_TRUE(run()->stroke(0x200 + 12, 0));
    EXPECT_EQ(received(), (Lines{"press 108 0x0", "press 24 0x80", "release 24 0x80", "release 108 0x80"}));
}

TEST_F(StrokeTest, aCodeWithoutAKeyPlaysNothing) {
    EXPECT_EQ(wordsOf(run()->stroke(key::showDesktop, modifier::shift)), "going");
    EXPECT_EQ(received(), Lines{});
}

TEST_F(StrokeTest, thePowerKeyIsRefusedAndEndsTheRun) {
    const auto session = run();
    EXPECT_EQ(wordsOf(session->stroke(key::power, 0)), "The power key cannot be pressed by a script.");
    EXPECT_EQ(wordsOf(session->stroke(key::a, 0)), "The power key cannot be pressed by a script.");
    EXPECT_EQ(received(), Lines{});
}

TEST_F(StrokeTest, aKeypadDigitSetsNumLockForItsStrokeAndPutsItBack) {
    ASSERT_TRUE(run()->stroke(key::keypadOne, 0));
    EXPECT_EQ(received(), (Lines{"press 87 0x10", "release 87 0x10"}));
    EXPECT_EQ(probe().locked(), 0);
}

TEST_F(StrokeTest, aKeypadDigitLeavesNumLockOnWhereItWas) {
    command({"xdotool", "key", "Num_Lock"});
    ASSERT_EQ(probe().locked(), xmask::numLock);
    const std::size_t before = received().size();
    ASSERT_TRUE(run()->stroke(key::keypadOne, 0));
    EXPECT_EQ(received().at(before), "press 87 0x10");
    EXPECT_EQ(probe().locked(), xmask::numLock);
}

TEST_F(StrokeTest, capsLockDoesNotTouchAStrokeAndIsOnAgainAfterwards) {
    command({"xdotool", "key", "Caps_Lock"});
    ASSERT_EQ(probe().locked(), xmask::capsLock);
    const std::size_t before = received().size();
    {
        const auto session = run();
        ASSERT_TRUE(session->stroke(key::a, 0));
        EXPECT_EQ(received(before + 1).at(before), "press 38 0x0");
        EXPECT_EQ(probe().locked(), 0);
    }
    EXPECT_EQ(probe().locked(), xmask::capsLock);
}

TEST_F(StrokeTest, aLockThatTheUserSwitchesInTheRunIsHisAfterwards) {
    {
        const auto session = run();
        ASSERT_TRUE(session->stroke(key::a, 0));
        command({"xdotool", "key", "Caps_Lock"});
        const std::size_t before = received().size();
        ASSERT_TRUE(session->stroke(key::a, 0));
        EXPECT_EQ(received(before + 1).at(before), "press 38 0x0");
    }
    EXPECT_EQ(probe().locked(), xmask::capsLock);
}

TEST_F(StrokeTest, aLockThatTheUserSwitchesBehindTheLastStrokeIsHisAfterwards) {
    {
        const auto session = run();
        ASSERT_TRUE(session->stroke(key::a, 0));
        command({"xdotool", "key", "Caps_Lock"});
        ASSERT_EQ(probe().locked(), xmask::capsLock);
    }
    EXPECT_EQ(probe().locked(), xmask::capsLock);
}

TEST_F(StrokeTest, aHeldKeyStaysDownForLaterStrokesUntilItIsReleased) {
    const auto session = run();
    ASSERT_TRUE(session->keyDown(HeldModifier{modifier::shift}));
    ASSERT_TRUE(session->stroke(key::a, modifier::shift));
    ASSERT_TRUE(session->keyUp(HeldModifier{modifier::shift}));
    EXPECT_EQ(received(4), (Lines{"press 50 0x0", "press 38 0x1", "release 38 0x1", "release 50 0x1"}));
}

TEST_F(StrokeTest, aHeldCapitalHoldsShiftToo) {
    const auto session = run();
    ASSERT_TRUE(session->keyDown(HeldText{"A"}));
    EXPECT_EQ(probe().awaitHeld("keys: 38 50, modifiers: 0x1"), "keys: 38 50, modifiers: 0x1");
    ASSERT_TRUE(session->keyUp(HeldText{"A"}));
    EXPECT_EQ(probe().awaitHeld("keys:, modifiers: 0x0"), "keys:, modifiers: 0x0");
}

TEST_F(StrokeTest, aHeldCharacterIsThatOneUnderALockThatTheRunHasTapped) {
    command({"xset", "r", "off"});
    const auto session = run();
    ASSERT_TRUE(session->stroke(key::capsLock, 0));
    ASSERT_TRUE(session->keyDown(HeldText{"a"}));
    EXPECT_EQ(received(3).at(2), "press 38 0x0");
    ASSERT_TRUE(session->keyUp(HeldText{"a"}));
    ASSERT_TRUE(session->stroke(key::b, 0));
    EXPECT_EQ(received(6).at(4), "press 56 0x2");
}

TEST_F(StrokeTest, whatIsNotReleasedIsReleasedAtTheEndOfTheRun) {
    {
        const auto session = run();
        ASSERT_TRUE(session->keyDown(HeldModifier{modifier::control}));
        ASSERT_TRUE(session->keyDown(HeldCode{key::a}));
        EXPECT_EQ(probe().awaitHeld("keys: 37 38, modifiers: 0x4"), "keys: 37 38, modifiers: 0x4");
    }
    EXPECT_EQ(probe().held(), "keys:, modifiers: 0x0");
}

TEST_F(StrokeTest, heldKeysAreReleasedAfterAnError) {
    {
        const auto session = run();
        ASSERT_TRUE(session->keyDown(HeldModifier{modifier::control}));
        EXPECT_FALSE(session->stroke(key::power, 0));
    }
    EXPECT_EQ(probe().held(), "keys:, modifiers: 0x0");
}

TEST_F(StrokeTest, aRestGivesTheKeyboardBackAndTheNextStrokeTakesItAgain) {
    command({"xdotool", "key", "Caps_Lock"});
    const std::string before = probe().words();
    auto session = run();
    ASSERT_TRUE(session->keyDown(HeldModifier{modifier::shift}));
    ASSERT_TRUE(session->keyDown(HeldCode{key::b}));
    const std::string during = probe().words();
    ASSERT_NE(during, before);
    program().injector().rest();
    EXPECT_EQ(probe().words(), before);
    ASSERT_TRUE(session->stroke(key::a, 0));
    EXPECT_EQ(probe().words(), during);
    EXPECT_EQ(received().back(), "release 38 0x1");
    session.reset();
    EXPECT_EQ(probe().words(), before);
}

TEST_F(StrokeTest, aRunThatEndsAtRestLeavesTheKeyboardAsItIs) {
    auto session = run();
    ASSERT_TRUE(session->keyDown(HeldModifier{modifier::shift}));
    program().injector().rest();
    command({"xdotool", "key", "Caps_Lock"});
    command({"xdotool", "keydown", "Shift_L"});
    const std::string before = probe().words();
    session.reset();
    EXPECT_EQ(probe().words(), before);
}

TEST_F(StrokeTest, betweenRunsThereIsNothingToRest) {
    command({"xdotool", "keydown", "Shift_L"});
    program().injector().rest();
    EXPECT_EQ(probe().held(), "keys: 50, modifiers: 0x1");
}

TEST_F(StrokeTest, theProgramItselfCanEndThePlayback) {
    program().injector().startPlayback();
    program().injector().stopPlayback();
    EXPECT_TRUE(program().injector().isCancelled());
    EXPECT_EQ(wordsOf(run()->stroke(key::a, 0)), "cancelled");
    program().injector().startPlayback();
    EXPECT_EQ(wordsOf(run()->stroke(key::a, 0)), "going");
}

TEST_F(StrokeTest, aReleaseOfWhatIsNotHeldDoesNothing) {
    ASSERT_TRUE(run()->keyUp(HeldModifier{modifier::shift}));
    EXPECT_EQ(received(), Lines{});
}

TEST_F(StrokeTest, aRunWithoutStrokesTouchesNothing) {
    command({"xdotool", "key", "Caps_Lock", "keydown", "shift"});
    const std::string before = probe().words();
    EXPECT_EQ(wordsOf(run()->pause(0.01)), "going");
    EXPECT_EQ(probe().words(), before);
    EXPECT_TRUE(std::filesystem::is_empty(program().runtimeFolder().path()));
}

TEST_F(StrokeTest, modifiersThatAnotherProgramLeftDownAreReleasedOnceAndNotPressedAgain) {
    const Hands other(display());
    Typist(other, std::chrono::milliseconds(0)).press({xkey::control});
    program().manager().dispatch();
    Typist(other, std::chrono::milliseconds(0)).hold(std::chrono::milliseconds(2100));
    const std::size_t before = received().size();
    ASSERT_TRUE(run()->stroke(key::a, 0));
    const Lines lines = received();
    EXPECT_EQ(Lines(lines.begin() + static_cast<std::ptrdiff_t>(before), lines.end()),
              (Lines{"release 37 0x4", "press 38 0x0", "release 38 0x0"}));
    EXPECT_EQ(probe().held(), "keys:, modifiers: 0x0");
}

TEST_F(StrokeTest, onlyOneRunIsOpenAtATime) {
    auto first = run();
    const auto second = program().injector().open({});
    ASSERT_FALSE(second);
    EXPECT_EQ(second.error().message, "A script is running already.");
    first.reset();
    EXPECT_TRUE(program().injector().open({}));
}

TEST_F(StrokeTest, anotherProgramsGrabIsAnErrorAfterHalfASecond) {
    CoreClient other(display());
    other.grabKeyboard();
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(wordsOf(run()->stroke(key::a, 0)),
              "Another program holds the keyboard, so that no keys can be pressed.");
    const std::chrono::duration<double> lasted = std::chrono::steady_clock::now() - begin;
    EXPECT_GE(lasted.count(), 0.5);
    EXPECT_LT(lasted.count(), 0.7);
    other.ungrabKeyboard();
    EXPECT_EQ(wordsOf(run()->stroke(key::a, 0)), "going");
}

TEST_F(StrokeTest, aHotKeyOfOursReachesTheApplicationAndFiresNothing) {
    int pressed = 0;
    program().manager().install([&pressed](HotKeyId) { ++pressed; }, [](HotKeyId) {});
    program().manager().request({.id = 3,
                                 .name = "play",
                                 .keyCode = key::p,
                                 .modifiers = modifier::control,
                                 .cancelsPlayback = true});
    EXPECT_EQ(wordsOf(run()->stroke(key::p, modifier::control)), "going");
    EXPECT_EQ(received(), (Lines{"press 37 0x0", "press 33 0x4", "release 33 0x4", "release 37 0x4"}));
    program().manager().dispatch();
    EXPECT_EQ(pressed, 0);
    command({"xdotool", "key", "ctrl+p"});
    EXPECT_TRUE(eventually([&] {
        program().manager().dispatch();
        return pressed == 1;
    }));
}

TEST_F(StrokeTest, aHotKeyThatTheRunHoldsReachesTheApplicationUntilItIsReleased) {
    command({"xset", "r", "off"});
    int pressed = 0;
    program().manager().install([&pressed](HotKeyId) { ++pressed; }, [](HotKeyId) {});
    program().manager().request({.id = 3, .name = "play", .keyCode = key::p, .modifiers = modifier::control});
    {
        const auto session = run();
        ASSERT_TRUE(session->keyDown(HeldModifier{modifier::control}));
        ASSERT_TRUE(session->keyDown(HeldCode{key::p}));
        ASSERT_TRUE(session->stroke(key::p, 0));
        ASSERT_TRUE(session->stroke(key::a, 0));
        EXPECT_EQ(received(6), (Lines{"press 37 0x0", "press 33 0x4", "release 33 0x4", "press 33 0x4",
                                      "press 38 0x4", "release 38 0x4"}));
        ASSERT_TRUE(session->keyUp(HeldCode{key::p}));
        ASSERT_TRUE(session->keyDown(HeldCode{key::p}));
        EXPECT_EQ(received(8).back(), "press 33 0x4");
    }
    program().manager().dispatch();
    EXPECT_EQ(pressed, 0);
    command({"xdotool", "key", "ctrl+p"});
    EXPECT_TRUE(eventually([&] {
        program().manager().dispatch();
        return pressed == 1;
    }));
}

TEST_F(StrokeTest, aHotKeyThatCancelsEndsTheRunUntilTheNextPlayback) {
    program().manager().request({.id = 2,
                                 .name = "stop",
                                 .keyCode = 1,
                                 .modifiers = modifier::control | modifier::command,
                                 .cancelsPlayback = true});
    auto session = run();
    ASSERT_TRUE(session->stroke(key::a, 0));
    command({"xdotool", "key", "ctrl+super+s"});
    EXPECT_EQ(wordsOf(session->pause(3600)), "cancelled");
    EXPECT_EQ(wordsOf(session->stroke(key::a, 0)), "cancelled");
    EXPECT_EQ(wordsOf(session->text("a", 0)), "cancelled");
    EXPECT_EQ(wordsOf(session->keyDown(HeldCode{key::a})), "cancelled");
    session.reset();
    program().injector().startPlayback();
    EXPECT_FALSE(program().injector().isCancelled());
    EXPECT_EQ(wordsOf(run()->stroke(key::a, 0)), "going");
}

TEST_F(StrokeTest, anInterruptEndsTheRunWithinAPauseAndForGood) {
    const auto session = run();
    ASSERT_TRUE(session->keyDown(HeldModifier{modifier::control}));
    program().injector().interrupt();
    EXPECT_EQ(wordsOf(session->pause(1e300)), "cancelled");
    EXPECT_EQ(wordsOf(session->stroke(key::a, 0)), "cancelled");
    EXPECT_TRUE(program().injector().isCancelled());
}

TEST_F(StrokeTest, aMarkThatNobodyLocksHasTheNextStartReleaseWhatXtestHolds) {
    const std::string folder = program().runtimeFolder().path() + "/keyrill";
    command({"xdotool", "keydown", "a", "keydown", "shift"});
    ASSERT_EQ(probe().held(), "keys: 38 50, modifiers: 0x1");
    program().end();
    program().begin();
    ASSERT_EQ(probe().held(), "keys: 38 50, modifiers: 0x1");

    program().end();
    std::filesystem::create_directory(folder);
    std::ofstream(folder + "/playing-" + display()).close();
    program().begin();
    EXPECT_EQ(probe().held(), "keys:, modifiers: 0x0");
    EXPECT_TRUE(std::filesystem::is_empty(folder));
}

TEST_F(StrokeTest, anEndBetweenTwoRunsReleasesNothingThatOthersHold) {
    ASSERT_TRUE(run()->stroke(key::a, 0));
    command({"xdotool", "keydown", "shift"});
    program().end();
    EXPECT_EQ(probe().held(), "keys: 50, modifiers: 0x1");
}

TEST(InjectorStartTest, aServerWithoutXtestIsAnErrorWithAHint) {
    const XServer server(
        {"Xvfb", "-screen", "0", "640x480x24", "-nolisten", "tcp", "-noreset", "-extension", "XTEST"});
    SteadyClock clock;
    const auto manager = x11::X11EventManager::open(clock, server.display());
    ASSERT_TRUE(manager);
    x11::X11KeyInjector injector(manager.value()->runWatch(), clock,
                                 {.display = server.display(), .guard = KEYRILL_GUARD, .runtimeFolder = {}});
    const auto session = injector.open({});
    ASSERT_FALSE(session);
    EXPECT_EQ(session.error().message, "The X server must have the XTEST extension, but it has not.");
    EXPECT_NE(session.error().hint, "");
}

TEST_F(StrokeTest, nothingIsPlayedWithoutAGuard) {
    x11::X11KeyInjector injector(program().manager().runWatch(), program().clock(),
                                 {.display = display(), .guard = "/nonexistent/guard", .runtimeFolder = {}});
    auto session = injector.open({});
    ASSERT_TRUE(session);
    EXPECT_EQ(wordsOf(session.value()->stroke(key::a, 0)),
              "The guard program \"/nonexistent/guard\", which releases keys after a crash, could not be "
              "started.");
    EXPECT_EQ(received(), Lines{});
}

}  // namespace

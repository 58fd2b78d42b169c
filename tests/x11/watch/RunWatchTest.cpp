// SPDX-License-Identifier: MIT
#include "platform/run/RunWatch.h"

#include <gtest/gtest.h>
#include <poll.h>

#include <functional>

#include "display/NestedServers.h"
#include "platform/Modifiers.h"
#include "platform/keymap/KeyboardState.h"
#include "x11/watch/X11Test.h"

namespace {

/// A clock that stands still until it is turned.
class StandingClock final : public Clock {
  public:
    Time now() const override { return m_now; }
    void sleepFor(Seconds) override {}
    void advance(std::chrono::milliseconds duration) { m_now += duration; }

  private:
    Time m_now = Time() + std::chrono::hours(1);
};

/// A run of a script on the XTEST keyboard beside a user at a real one.
class RunWatchTest : public testing::Test {
  protected:
    using Log = std::vector<std::string>;

    explicit RunWatchTest(const std::vector<std::string>& options = {}) : m_servers(options) {
        auto manager = x11::X11EventManager::open(m_clock, m_servers.display());
        EXPECT_TRUE(manager);
        m_manager = std::move(manager).value();
        EXPECT_TRUE(m_manager->install([this](const KeyEvent& event) { note(wordsFor(event)); }));
        m_manager->install([this](HotKeyId id) { note("pressed " + std::to_string(id)); },
                           [this](HotKeyId id) { note("released " + std::to_string(id)); });
        m_manager->request({.id = 2,
                            .name = "stop",
                            .keyCode = 1,
                            .modifiers = modifier::control | modifier::command,
                            .cancelsPlayback = true});
    }

    RunWatch& watch() { return m_manager->runWatch(); }
    x11::X11EventManager& manager() { return *m_manager; }
    StandingClock& clock() { return m_clock; }
    const Hands& user() const { return m_servers.user(); }
    const Hands& program() const { return m_servers.program(); }
    const NestedServers& servers() const { return m_servers; }

    void ownKey(std::uint8_t keycode, bool press) {
        watch().expectOwnKey(keycode, press);
        press ? program().press(keycode) : program().release(keycode);
    }
    void ownStroke(const std::vector<std::uint8_t>& keycodes) {
        for (const std::uint8_t keycode : keycodes) ownKey(keycode, true);
        for (auto key = keycodes.rbegin(); key != keycodes.rend(); ++key) ownKey(*key, false);
    }

    /// Turns the loop until that line has come.
    bool loopUntilLine(const std::string& line) {
        return eventually([&] {
            m_servers.finish();
            m_manager->dispatch();
            return std::find(m_log.begin(), m_log.end(), line) != m_log.end();
        });
    }
    bool drainUntil(const std::function<bool()>& condition) {
        return eventually([&] {
            m_servers.finish();
            watch().drain();
            return condition();
        });
    }
    const Log& log() const { return m_log; }

    std::function<void(const std::string&)> onLine;

  private:
    void note(const std::string& line) {
        m_log.push_back(line);
        if (onLine) onLine(line);
    }

    NestedServers m_servers;
    StandingClock m_clock;
    std::unique_ptr<x11::X11EventManager> m_manager;
    Log m_log;
};

TEST_F(RunWatchTest, ownStrokesAreNotDeliveredAndTheUsersComeAfterTheRun) {
    watch().runStarts();
    ownStroke({xkey::shift, xkey::a});
    program().finish();
    user().tap(xkey::b);
    EXPECT_TRUE(drainUntil([&] {
        manager().dispatch();
        return true;
    }));
    ownStroke({xkey::q});
    program().finish();
    EXPECT_EQ(log(), Log{});
    watch().runEnds();
    EXPECT_TRUE(loopUntilLine("up 11"));
    EXPECT_EQ(log(), (Log{"down 11 b 0x0", "up 11"}));
}

TEST_F(RunWatchTest, ownStrokesAreDeliveredAfterTheRunWhileTheyAreKept) {
    manager().setKeepsOwnStrokes(true);
    watch().runStarts();
    ownStroke({xkey::shift, xkey::a});
    program().finish();
    watch().runEnds();
    EXPECT_TRUE(loopUntilLine("up 0"));
    EXPECT_TRUE(loopUntilLine("mask 0x0"));
    EXPECT_EQ(log(), (Log{"mask 0x200", "down 0 A 0x200", "up 0", "mask 0x0"}));
}

TEST_F(RunWatchTest, otherProgramsKeysAreNotTakenForOwnOnes) {
    watch().runStarts();
    ownStroke({xkey::q});
    program().tap(xkey::q);
    program().tap(xkey::a);
    program().finish();
    watch().runEnds();
    EXPECT_TRUE(loopUntilLine("up 0"));
    EXPECT_EQ(log(), (Log{"down 12 q 0x0", "up 12", "down 0 a 0x0", "up 0"}));
}

TEST_F(RunWatchTest, anOwnStrokeNeverFiresAHotKey) {
    watch().runStarts();
    ownStroke({xkey::control, xkey::super, xkey::s});
    program().finish();
    watch().runEnds();
    program().stroke({xkey::control, xkey::super, xkey::s});
    EXPECT_TRUE(loopUntilLine("released 2"));
    EXPECT_EQ(std::count(log().begin(), log().end(), "pressed 2"), 1);
}

TEST_F(RunWatchTest, aLiftedHotKeyReachesTheApplicationAndComesBack) {
    CoreClient application(servers().display());
    watch().runStarts();
    constexpr std::uint16_t controlSuper = xmask::control | xmask::super;
    EXPECT_FALSE(watch().liftHotKey(xkey::s, xmask::control));
    ASSERT_TRUE(watch().liftHotKey(xkey::s, controlSuper));
    ownStroke({xkey::control, xkey::super, xkey::s});
    program().finish();
    watch().restoreHotKeysOf(xkey::s);
    EXPECT_EQ(application.presses(xkey::s), 1);
    watch().runEnds();
    program().stroke({xkey::control, xkey::super, xkey::s});
    EXPECT_TRUE(loopUntilLine("pressed 2"));
    EXPECT_EQ(application.presses(xkey::s), 1);
}

TEST_F(RunWatchTest, afterTheGrabIsEndedStrokesReachTheApplicationAndTheReleaseIsStillSeen) {
    CoreClient application(servers().display());
    program().press(xkey::control);
    program().press(xkey::super);
    program().press(xkey::s);
    ASSERT_TRUE(loopUntilLine("pressed 2"));
    watch().endHotKeyGrab();
    program().tap(xkey::q);
    program().finish();
    EXPECT_EQ(application.presses(xkey::q), 1);
    program().release(xkey::s);
    EXPECT_TRUE(loopUntilLine("released 2"));
}

TEST_F(RunWatchTest, aHotKeyThatCancelsDoesSoDuringTheRunAndIsDispatchedAfterIt) {
    watch().startPlayback();
    watch().runStarts();
    user().stroke({xkey::control, xkey::super, xkey::s});
    EXPECT_TRUE(drainUntil([&] { return watch().isCancelled(); }));
    EXPECT_EQ(log(), Log{});
    watch().runEnds();
    EXPECT_TRUE(loopUntilLine("pressed 2"));
    watch().startPlayback();
    EXPECT_FALSE(watch().isCancelled());
}

TEST_F(RunWatchTest, escapeOfARealKeyboardCancelsWhenItHasBeenHeld) {
    watch().startPlayback();
    watch().runStarts();
    user().press(xkey::escape);
    ASSERT_TRUE(drainUntil([&] { return watch().cancelDeadline().has_value(); }));
    EXPECT_EQ(*watch().cancelDeadline(), clock().now() + std::chrono::milliseconds(300));
    clock().advance(std::chrono::milliseconds(299));
    EXPECT_FALSE(watch().isCancelled());
    clock().advance(std::chrono::milliseconds(1));
    EXPECT_TRUE(watch().isCancelled());
    user().release(xkey::escape);
    EXPECT_TRUE(drainUntil([&] { return !watch().cancelDeadline().has_value(); }));
    watch().runEnds();
}

TEST_F(RunWatchTest, aShortEscapeDoesNotCancel) {
    watch().startPlayback();
    user().press(xkey::escape);
    ASSERT_TRUE(drainUntil([&] { return watch().cancelDeadline().has_value(); }));
    user().release(xkey::escape);
    ASSERT_TRUE(drainUntil([&] { return !watch().cancelDeadline().has_value(); }));
    clock().advance(std::chrono::milliseconds(1000));
    EXPECT_FALSE(watch().isCancelled());
}

TEST_F(RunWatchTest, escapeHeldByAnotherProgramCancelsAndTheScriptsOwnDoesNot) {
    watch().startPlayback();
    ownKey(xkey::escape, true);
    program().finish();
    manager().dispatch();
    EXPECT_FALSE(watch().cancelDeadline().has_value());
    ownKey(xkey::escape, false);
    program().press(xkey::escape);
    EXPECT_TRUE(drainUntil([&] { return watch().cancelDeadline().has_value(); }));
    clock().advance(std::chrono::milliseconds(300));
    EXPECT_TRUE(watch().isCancelled());
    program().release(xkey::escape);
    program().finish();
}

TEST_F(RunWatchTest, tellsWhatHandsHoldAndWhatWasLeftDown) {
    ownKey(xkey::a, true);
    program().finish();
    watch().drain();
    EXPECT_FALSE(watch().handsHoldKeys());
    program().press(xkey::control);
    user().press(xkey::altGr);
    const Clock::Time pressed = clock().now();
    EXPECT_TRUE(
        drainUntil([&] { return watch().leftOvers(pressed + std::chrono::seconds(2)).count() == 2; }));
    EXPECT_TRUE(watch().handsHoldKeys());
    EXPECT_TRUE(watch().leftOvers(pressed + std::chrono::milliseconds(1999)).none());
    EXPECT_TRUE(watch().leftOvers(pressed + std::chrono::seconds(2)).test(xkey::control));
    ownKey(xkey::a, false);
    program().release(xkey::control);
    user().release(xkey::altGr);
    EXPECT_TRUE(drainUntil([&] { return !watch().handsHoldKeys(); }));
}

TEST_F(RunWatchTest, whatTheServerMadeNothingOfIsForgotten) {
    watch().startPlayback();
    watch().runStarts();
    watch().expectOwnKey(xkey::escape, true);
    watch().settleOwnKeys();
    program().press(xkey::escape);
    EXPECT_TRUE(drainUntil([&] { return watch().cancelDeadline().has_value(); }));
    program().release(xkey::escape);
    program().finish();
    watch().runEnds();
}

TEST_F(RunWatchTest, theUsersHeldModifierStaysReportedThoughTheRunPutsItOut) {
    user().press(xkey::control);
    ASSERT_TRUE(loopUntilLine("mask 0x1000"));
    watch().runStarts();
    ownKey(xkey::control, false);
    ownStroke({xkey::a});
    program().finish();
    watch().runEnds();
    manager().dispatch();
    EXPECT_EQ(log().back(), "mask 0x1000");
    user().release(xkey::control);
    EXPECT_TRUE(loopUntilLine("mask 0x0"));
    EXPECT_EQ(log(), (Log{"mask 0x1000", "mask 0x0"}));
}

TEST_F(RunWatchTest, theHandlerMayRunAScript) {
    bool ran = false;
    onLine = [&](const std::string& line) {
        if (line != "up 0" || std::exchange(ran, true)) return;
        watch().runStarts();
        ownStroke({xkey::q});
        program().tap(xkey::b);
        program().finish();
        watch().drain();
        watch().runEnds();
    };
    program().tap(xkey::a);
    EXPECT_TRUE(loopUntilLine("up 11"));
    EXPECT_EQ(log(), (Log{"down 0 a 0x0", "up 0", "down 11 b 0x0", "up 11"}));
}

TEST_F(RunWatchTest, theDescriptorIsReadableAfterTheRunIfSomethingWasKept) {
    manager().dispatch();
    watch().runStarts();
    program().tap(xkey::a);
    program().finish();
    watch().drain();
    watch().runEnds();
    pollfd descriptor{manager().fileDescriptor(), POLLIN, 0};
    EXPECT_EQ(poll(&descriptor, 1, 0), 1);
}

TEST_F(RunWatchTest, theDescriptorIsReadableAfterADrainBesideARunThatReadSomething) {
    manager().dispatch();
    program().tap(xkey::a);
    program().finish();
    watch().drain();
    pollfd descriptor{manager().fileDescriptor(), POLLIN, 0};
    EXPECT_EQ(poll(&descriptor, 1, 0), 1);
    EXPECT_TRUE(loopUntilLine("up 0"));
}

TEST_F(RunWatchTest, aLayoutChangedDuringARunIsFollowed) {
    watch().runStarts();
    outputOf({"setxkbmap", "-layout", "fr"}, {{"DISPLAY", servers().display()}});
    const std::size_t before = manager().keyboard().keymap().fingerprint();
    EXPECT_TRUE(drainUntil([&] { return manager().keyboard().keymap().fingerprint() != before; }));
    watch().runEnds();
    program().tap(xkey::q);
    EXPECT_TRUE(loopUntilLine("down 12 a 0x0"));
}

TEST_F(RunWatchTest, pairsOfReleaseAndPressAtOneTimeAreRepeats) {
    CoreClient application(servers().display());
    user().press(xkey::a);
    ASSERT_TRUE(eventually([&] {
        servers().finish();
        return application.presses(xkey::a) >= 4;
    }));
    user().release(xkey::a);
    ASSERT_TRUE(loopUntilLine("up 0"));
    // A slow machine may pass a pair on with two times; then it is a release and a press for everybody.
    const long downs = std::count(log().begin(), log().end(), "down 0 a 0x0");
    const long repeats = std::count(log().begin(), log().end(), "repeat 0 a 0x0");
    EXPECT_EQ(repeats, application.repeats(xkey::a));
    EXPECT_EQ(downs + repeats, application.presses(xkey::a));
}

class WithoutRecordTest : public RunWatchTest {
  protected:
    WithoutRecordTest() : RunWatchTest({"-extension", "RECORD"}) {}
};

TEST_F(WithoutRecordTest, everythingButRepeatsWorksAndThatIsSaid) {
    ASSERT_TRUE(manager().problem().has_value());
    EXPECT_EQ(manager().problem()->message,
              "Auto-repeats of held keys cannot be recorded: the X server has no RECORD extension.");
    user().stroke({xkey::control, xkey::super, xkey::s});
    user().tap(xkey::a);
    ASSERT_TRUE(loopUntilLine("up 0"));
    EXPECT_EQ(log(), (Log{"mask 0x1000", "mask 0x1100", "pressed 2", "released 2", "mask 0x1000", "mask 0x0",
                          "down 0 a 0x0", "up 0"}));
}

// A run that waits sleeps: every client is told of a keymap, those of the run that want nothing of it too.
TEST_F(RunWatchTest, aKeymapThatIsSetWhileARunLastsKeepsNothingAwake) {
    watch().runStarts();
    outputOf({"setxkbmap", "-layout", "fr"}, {{"DISPLAY", servers().display()}});
    EXPECT_TRUE(drainUntil([this] {
        pollfd readable{.fd = watch().fileDescriptor(), .events = POLLIN, .revents = 0};
        constexpr int aWhile = 100;
        return poll(&readable, 1, aWhile) == 0;
    }));
    watch().runEnds();
}

}  // namespace

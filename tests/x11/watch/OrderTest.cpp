// SPDX-License-Identifier: MIT
#include <poll.h>
#include <signal.h>

#include <algorithm>
#include <future>

#include "platform/Modifiers.h"
#include "x11/watch/X11Test.h"

namespace {

class OrderTest : public X11Test {
  protected:
    /// Shows no more of long logs than the first event that differs.
    static void expectEqual(const Log& log, const Log& expected) {
        EXPECT_EQ(log.size(), expected.size());
        const auto [got, wanted] = std::mismatch(log.begin(), log.end(), expected.begin(), expected.end());
        const bool equal = got == log.end() && wanted == expected.end();
        EXPECT_TRUE(equal) << "event " << got - log.begin() << " is "
                           << (got == log.end() ? "missing" : *got);
    }
};

TEST_F(OrderTest, keysThatOtherProgramsPressAreDelivered) {
    outputOf({"xdotool", "key", "a", "shift+b"}, {{"DISPLAY", world().display()}});
    Log log = delivered();
    std::erase_if(log, [](const std::string& line) { return line.starts_with("up"); });
    EXPECT_EQ(log, (Log{"down 0 a 0x0", "mask 0x200", "down 11 B 0x200", "mask 0x0"}));
}

TEST_F(OrderTest, theLowestKeyIsDeliveredAsAKey) {
    constexpr std::uint8_t lowest = 8;
    hands().tap(lowest);
    EXPECT_EQ(delivered(), (Log{"down 4096 0x0", "up 4096"}));
}

TEST_F(OrderTest, redundantPressesAndReleasesGiveNothing) {
    hands().release(xkey::a);
    hands().press(xkey::a);
    hands().press(xkey::a);
    hands().release(xkey::a);
    hands().release(xkey::a);
    hands().release(xkey::shift);
    EXPECT_EQ(delivered(), (Log{"down 0 a 0x0", "up 0"}));
}

TEST_F(OrderTest, twentyThousandPressesFlatOutComeInOrder) {
    constexpr int presses = 20000;
    Log expected;
    for (int i = 0; i < presses; ++i) {
        expected.emplace_back(i % 3 == 0 ? "down 0 a 0x0" : "down 11 b 0x0");
        expected.emplace_back(i % 3 == 0 ? "up 0" : "up 11");
    }
    // As from another program: what presses the keys does not wait for what takes them in.
    const auto typing = std::async(std::launch::async, [this] {
        for (int i = 0; i < presses; ++i) hands().tap(i % 3 == 0 ? xkey::a : xkey::b);
        hands().flush();
    });
    EXPECT_TRUE(loopUntil([&] { return log().size() >= expected.size(); }));
    expectEqual(delivered(), expected);
}

TEST_F(OrderTest, aLetterIsDeliveredBeforeTheHotKeyThatFollowsInTheSameFlush) {
    ASSERT_EQ(request(2, "stop", 1).status, HotKeyStatus::registered);
    constexpr int rounds = 1000;
    Log expected;
    for (int i = 0; i < rounds; ++i) {
        // The letter of the hot key itself every other time.
        const bool same = i % 2 == 0;
        hands().tap(same ? xkey::s : xkey::a);
        hands().stroke({xkey::control, xkey::super, xkey::s});
        hands().flush();
        const Log round = {same ? "down 1 s 0x0" : "down 0 a 0x0",
                           same ? "up 1" : "up 0",
                           "mask 0x1000",
                           "mask 0x1100",
                           "pressed 2",
                           "released 2",
                           "mask 0x1000",
                           "mask 0x0"};
        expected.insert(expected.end(), round.begin(), round.end());
        ASSERT_TRUE(loopUntil([&] { return log().size() >= expected.size(); })) << i;
    }
    EXPECT_EQ(log(), expected);
}

TEST_F(OrderTest, manyHotKeysInOneFlushKeepTheirPlaces) {
    ASSERT_EQ(request(2, "stop", 1).status, HotKeyStatus::registered);
    constexpr int rounds = 300;
    for (int i = 0; i < rounds; ++i) {
        hands().tap(xkey::s);
        hands().stroke({xkey::control, xkey::super, xkey::s});
        hands().tap(xkey::s);
    }
    hands().flush();
    Log log = delivered();
    std::erase_if(log, [](const std::string& line) { return line.starts_with("mask"); });
    Log expected;
    for (int i = 0; i < rounds; ++i) {
        const Log round = {"down 1 s 0x0", "up 1", "pressed 2", "released 2", "down 1 s 0x0", "up 1"};
        expected.insert(expected.end(), round.begin(), round.end());
    }
    expectEqual(log, expected);
}

TEST_F(OrderTest, keysAreDeliveredWhileAnotherProgramHoldsTheKeyboard) {
    ASSERT_EQ(request(2, "stop", 1).status, HotKeyStatus::registered);
    const CoreClient menu(world().display());
    menu.grabKeyboard();
    hands().tap(xkey::a);
    hands().stroke({xkey::control, xkey::super, xkey::s});
    EXPECT_EQ(delivered(), (Log{"down 0 a 0x0", "up 0", "mask 0x1000", "mask 0x1100", "down 1 s 0x1100",
                                "up 1", "mask 0x1000", "mask 0x0"}));
    menu.ungrabKeyboard();
    hands().stroke({xkey::control, xkey::super, xkey::s});
    EXPECT_EQ(delivered("pressed"), Log{"pressed 2"});
}

TEST_F(OrderTest, nothingStaysInMemoryAfterARequest) {
    hands().tap(xkey::a);
    hands().finish();
    request(2, "stop", 1);
    ASSERT_TRUE(loopUntil([&] { return count("up 0") == 1; }));
}

TEST_F(OrderTest, aHandlerThatTurnsTheLoopIsNotEnteredAgain) {
    int depth = 0;
    int deepest = 0;
    Log seen;
    ASSERT_TRUE(world().monitor().install([&](const KeyEvent& event) {
        deepest = std::max(deepest, ++depth);
        seen.push_back(wordsFor(event));
        hands().finish();
        world().turnLoop();
        --depth;
    }));
    hands().tap(xkey::a);
    hands().tap(xkey::b);
    world().settle();
    EXPECT_EQ(deepest, 1);
    EXPECT_EQ(seen, (Log{"down 0 a 0x0", "up 0", "down 11 b 0x0", "up 11"}));
}

TEST_F(OrderTest, whatIsPressedBeforeKeysAreWithheldAndAfterwardsIsDelivered) {
    ASSERT_EQ(request(2, "stop", 1).status, HotKeyStatus::registered);
    hands().tap(xkey::b);
    hands().finish();
    world().monitor().setWithheld(true);
    hands().tap(xkey::a);
    hands().stroke({xkey::control, xkey::super, xkey::s});
    hands().finish();
    world().monitor().setWithheld(false);
    hands().tap(xkey::a);
    EXPECT_EQ(delivered(), (Log{"down 11 b 0x0", "up 11", "mask 0x1000", "mask 0x1100", "mask 0x1000",
                                "mask 0x0", "down 0 a 0x0", "up 0"}));
}

/// The menu's own keys are withheld, and it is told last that it has let go of the keyboard.
TEST_F(OrderTest, whatAMenuNoLongerGetsIsDeliveredThoughItIsStillWithheld) {
    const CoreClient menu(world().display());
    const CoreClient application(world().display());
    for (int i = 0; i < 2; ++i) {
        world().monitor().setWithheld(true);
        world().monitor().withholdOnlyFor(menu.window());
        menu.grabKeyboard();
        hands().tap(xkey::a);
        hands().finish();
        menu.ungrabKeyboard();
        hands().tap(xkey::b);
        hands().finish();
        world().monitor().setWithheld(false);
        hands().tap(xkey::s);
        EXPECT_EQ(delivered(), (Log{"down 11 b 0x0", "up 11", "down 1 s 0x0", "up 1"}));
    }
    world().monitor().setWithheld(true);
    menu.grabKeyboard();
    menu.ungrabKeyboard();
    hands().tap(xkey::a);
    EXPECT_EQ(delivered(), Log{});
}

TEST_F(OrderTest, keysThatAreDownAtTheStartCount) {
    hands().press(xkey::shift);
    hands().finish();
    SteadyClock clock;
    auto late = x11::X11EventManager::open(clock, world().display());
    ASSERT_TRUE(late);
    Log seen;
    ASSERT_TRUE(late.value()->install([&](const KeyEvent& event) { seen.push_back(wordsFor(event)); }));
    hands().tap(xkey::a);
    hands().release(xkey::shift);
    hands().finish();
    late.value()->dispatch();
    EXPECT_EQ(seen, (Log{"mask 0x200", "down 0 A 0x200", "up 0", "mask 0x0"}));
}

TEST_F(OrderTest, aServerThatIsGoneIsNoticedAndLeavesTheLoopAtRest) {
    kill(world().server().pid(), SIGKILL);
    EXPECT_TRUE(loopUntil([&] { return world().manager().isBroken(); }));
    world().manager().dispatch();
    pollfd descriptor{world().manager().fileDescriptor(), POLLIN, 0};
    EXPECT_EQ(poll(&descriptor, 1, 0), 0);
    EXPECT_EQ(request(2, "stop", 1).status, HotKeyStatus::refused);
}

}  // namespace

// SPDX-License-Identifier: MIT
//
// How long Control, Alt and Super stay down after the key of a stroke.
#include "display/NestedServers.h"
#include "display/Typist.h"
#include "platform/Modifiers.h"
#include "support/Keys.h"
#include "x11/press/InjectorTest.h"

namespace {

using Lines = std::vector<std::string>;
constexpr std::uint32_t tab = 48;

class TailTest : public InjectorTest {
  protected:
    Lines received() { return wordsOf(m_client.events()); }
    /// Milliseconds between two of the events.
    std::uint32_t between(std::size_t earlier, std::size_t later) {
        const auto& events = m_client.events();
        return events.at(later).time - events.at(earlier).time;
    }

    // The server counts whole milliseconds of its own.
    static constexpr std::uint32_t length = 29;

  private:
    CoreClient m_client{display()};
};

TEST_F(TailTest, modifiersComeUpAWhileAfterTheKeyInAPauseAndAtTheEnd) {
    const auto begin = std::chrono::steady_clock::now();
    {
        const auto session = run();
        ASSERT_TRUE(session->stroke(tab, modifier::option | modifier::shift));
        ASSERT_TRUE(session->pause(0.1));
        ASSERT_TRUE(session->stroke(tab, modifier::option));
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1));
    ASSERT_EQ(received(),
              (Lines{"press 50 0x0", "press 64 0x1", "press 23 0x9", "release 23 0x9", "release 64 0x9",
                     "release 50 0x1", "press 64 0x0", "press 23 0x8", "release 23 0x8", "release 64 0x8"}));
    EXPECT_GE(between(3, 4), length);
    EXPECT_LT(between(4, 5), length / 2) << "both come up together";
    EXPECT_GE(between(5, 6), 50U);
    EXPECT_GE(between(8, 9), length);
}

TEST_F(TailTest, strokesWithTheSameModifiersAreOneHold) {
    {
        const auto session = run();
        for (const std::uint32_t shift : {0U, 0U, modifier::shift, 0U}) {
            ASSERT_TRUE(session->stroke(tab, modifier::option | shift));
            ASSERT_TRUE(session->pause(0.01));
        }
    }
    EXPECT_EQ(received(), (Lines{"press 64 0x0", "press 23 0x8", "release 23 0x8", "press 23 0x8",
                                 "release 23 0x8", "press 50 0x8", "press 23 0x9", "release 23 0x9",
                                 "release 50 0x9", "press 23 0x8", "release 23 0x8", "release 64 0x8"}));
}

TEST_F(TailTest, aStrokeWithOthersWaitsUntilTheyAreUp) {
    {
        const auto session = run();
        ASSERT_TRUE(session->stroke(tab, modifier::option));
        ASSERT_TRUE(session->stroke(key::a, 0));
        ASSERT_TRUE(session->text("a", modifier::control));
        ASSERT_TRUE(session->text("ab", modifier::control));
        ASSERT_TRUE(session->keyDown(HeldModifier{modifier::control}));
        ASSERT_TRUE(session->keyUp(HeldModifier{modifier::control}));
    }
    ASSERT_EQ(received(), (Lines{"press 64 0x0", "press 23 0x8", "release 23 0x8", "release 64 0x8",
                                 "press 38 0x0", "release 38 0x0", "press 37 0x0", "press 38 0x4",
                                 "release 38 0x4", "press 38 0x4", "release 38 0x4", "press 56 0x4",
                                 "release 56 0x4", "release 37 0x4", "press 37 0x0", "release 37 0x4"}));
    EXPECT_GE(between(2, 3), length);
    EXPECT_GE(between(12, 13), length);
}

TEST_F(TailTest, otherStrokesWaitForNothing) {
    const auto session = run();
    const auto begin = std::chrono::steady_clock::now();
    for (int stroke = 0; stroke < 100; ++stroke) ASSERT_TRUE(session->stroke(key::a, modifier::shift));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(100 * length));
    EXPECT_EQ(received().back(), "release 50 0x1");
}

TEST_F(TailTest, aRunThatDoesSomethingElseLetsGo) {
    const auto session = run();
    ASSERT_TRUE(session->stroke(tab, modifier::option));
    program().injector().settle();
    ASSERT_TRUE(eventually([this] { return received().back() == "release 64 0x8"; }));
    ASSERT_TRUE(session->stroke(tab, modifier::option));
    EXPECT_TRUE(eventually([this] {
        program().injector().isCancelled();
        return received().size() == 8;
    }));
}

TEST_F(TailTest, aCancelledRunLetsGoInItsTimeToo) {
    {
        const auto session = run();
        ASSERT_TRUE(session->stroke(tab, modifier::option));
        program().injector().stopPlayback();
        EXPECT_EQ(wordsOf(session->stroke(key::a, 0)), "cancelled");
    }
    ASSERT_EQ(received().back(), "release 64 0x8");
    EXPECT_GE(between(2, 3), length);
}

/// A user at a real keyboard.
class HandsInATailTest : public testing::Test {
  protected:
    NestedServers servers;
    InjectorOnDisplay program{servers.display()};
};

TEST_F(HandsInATailTest, aCombinationReachesItsHotKeyBetweenStrokesThatHoldAlt) {
    program.manager().request({.id = 2,
                               .name = "stop",
                               .keyCode = 1,
                               .modifiers = modifier::control | modifier::command,
                               .cancelsPlayback = true});
    const auto session = program.run();
    Step<> step = session->stroke(tab, modifier::option);
    ASSERT_TRUE(step);
    Child hands({"xdotool", "keydown", "ctrl", "sleep", "0.03", "keydown", "super", "sleep", "0.03", "key",
                 "s", "keyup", "super", "keyup", "ctrl"},
                {.environment = {{"DISPLAY", servers.outerDisplay()}}, .outputFile = {}});
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (step && std::chrono::steady_clock::now() < end) {
        step = session->pause(0.01);
        if (step) step = session->stroke(tab, modifier::option);
    }
    EXPECT_EQ(wordsOf(step), "cancelled");
    EXPECT_EQ(hands.wait(), 0);
}

}  // namespace

// SPDX-License-Identifier: MIT
#include "display/NestedServers.h"
#include "platform/Modifiers.h"
#include "support/Keys.h"
#include "x11/press/InjectorTest.h"

namespace {

/// Runs while a user has his hands on a real keyboard.
class UserHandsTest : public testing::Test {
  protected:
    const Hands& user() const { return m_servers.user(); }
    InjectorOnDisplay& program() { return m_program; }
    const KeyboardProbe& probe() const { return m_probe; }
    const std::string& display() const { return m_servers.display(); }
    void finish() const { m_servers.finish(); }
    void waitFor(const std::string& held) { ASSERT_EQ(probe().awaitHeld(held), held); }

    static constexpr const char* row = "the quick brown fox\n";

  private:
    NestedServers m_servers;
    InjectorOnDisplay m_program{m_servers.display()};
    KeyboardProbe m_probe{m_servers.display()};
};

TEST_F(UserHandsTest, aHeldControlDoesNotTaintTheRunAndDoesNotStick) {
    const Terminal terminal(display());
    user().press(xkey::control);
    finish();
    waitFor("keys: 37, modifiers: 0x4");
    std::string expected;
    for (int line = 0; line < 20; ++line) {
        ASSERT_TRUE(program().run()->text(row, 0));
        expected += row;
    }
    EXPECT_EQ(terminal.typed(expected.size()), expected);
    user().release(xkey::control);
    finish();
    waitFor("keys:, modifiers: 0x0");
}

TEST_F(UserHandsTest, aShiftPressedInTheRunDoesNotTaintTheStrokesAfterIt) {
    const Terminal terminal(display());
    const auto session = program().run();
    std::string expected;
    for (int stroke = 0; stroke < 60; ++stroke) {
        // What is in flight when the user presses is his as well as ours.
        finish();
        if (stroke % 20 == 10) user().press(xkey::shift);
        if (stroke % 20 == 15) user().release(xkey::shift);
        finish();
        ASSERT_TRUE(session->pause(0.005));
        ASSERT_TRUE(session->stroke(0, 0));
        expected += 'a';
    }
    EXPECT_EQ(terminal.typed(expected.size()), expected);
    waitFor("keys:, modifiers: 0x0");
}

TEST_F(UserHandsTest, aHotKeyThatIsStillHeldDoesNotSwallowTheStrokes) {
    CoreClient client(display());
    int pressed = 0;
    program().manager().install([&pressed](HotKeyId) { ++pressed; }, [](HotKeyId) {});
    program().manager().request(
        {.id = 3, .name = "play", .keyCode = 35, .modifiers = modifier::control, .cancelsPlayback = false});
    user().press(xkey::control);
    user().press(xkey::p);
    finish();
    ASSERT_TRUE(eventually([&] {
        program().manager().dispatch();
        return pressed == 1;
    }));
    const int before = client.presses(xkey::a);
    EXPECT_EQ(wordsOf(program().run()->stroke(0, 0)), "going");
    EXPECT_EQ(client.presses(xkey::a), before + 1);
    EXPECT_EQ(wordsOf(client.events()).back(), "release 38 0x0");
}

TEST_F(UserHandsTest, escapeHeldForThreeTenthsOfASecondEndsTheRunWithinAPause) {
    const auto session = program().run();
    ASSERT_TRUE(session->stroke(0, 0));
    user().press(xkey::escape);
    finish();
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(wordsOf(session->pause(5)), "cancelled");
    const std::chrono::duration<double> lasted = std::chrono::steady_clock::now() - begin;
    EXPECT_LT(lasted.count(), 0.4);
    EXPECT_EQ(wordsOf(session->stroke(0, 0)), "cancelled");
    EXPECT_TRUE(program().injector().isCancelled());
    user().release(xkey::escape);
    finish();
    waitFor("keys:, modifiers: 0x0");
    program().injector().startPlayback();
    EXPECT_FALSE(program().injector().isCancelled());
}

TEST_F(UserHandsTest, aShortEscapeAndTheScriptsOwnEndNothing) {
    const auto session = program().run();
    user().tap(xkey::escape);
    finish();
    EXPECT_EQ(wordsOf(session->pause(0.4)), "going");
    ASSERT_TRUE(session->keyDown(HeldCode{53}));
    EXPECT_EQ(wordsOf(session->pause(0.4)), "going");
}

TEST_F(UserHandsTest, escapeEndsAKeyDownWhoseCharacterWaitsForAKey) {
    const auto session = program().run();
    // No unused key is left, so that the next new character waits until all before it have been read.
    ASSERT_TRUE(session->text(ideographs(300), 0));
    CoreClient client(display());
    client.claimToAnswerPings();
    user().press(xkey::escape);
    finish();
    EXPECT_EQ(wordsOf(session->keyDown(HeldText{"\u6F22"})), "cancelled");
    for (const auto& event : client.events()) EXPECT_EQ(event.keycode, xkey::escape);
    user().release(xkey::escape);
    finish();
    waitFor("keys:, modifiers: 0x0");
}

}  // namespace

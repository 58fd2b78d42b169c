// SPDX-License-Identifier: MIT
#include <algorithm>
#include <future>

#include "display/NestedServers.h"
#include "display/Typist.h"
#include "platform/Modifiers.h"
#include "support/Keys.h"
#include "x11/press/InjectorTest.h"

namespace {

/// Runs while a user has his hands on a real keyboard.
class UserHandsTest : public testing::Test {
  protected:
    const NestedServers& servers() const { return m_servers; }
    const Hands& user() const { return m_servers.user(); }
    InjectorOnDisplay& program() { return m_program; }
    const KeyboardProbe& probe() const { return m_probe; }
    const std::string& display() const { return m_servers.display(); }
    void finish() const { m_servers.finish(); }
    void waitFor(const std::string& held) { ASSERT_EQ(probe().awaitHeld(held), held); }

    /// Lets go of keys after that time, while the run goes on; the moment before they were up.
    std::future<std::chrono::steady_clock::time_point> released(std::initializer_list<std::uint8_t> keycodes,
                                                                std::chrono::milliseconds after) const {
        return std::async(std::launch::async, [this, keys = std::vector(keycodes), after] {
            Typist(m_servers, std::chrono::milliseconds(0)).hold(after);
            const auto now = std::chrono::steady_clock::now();
            for (const std::uint8_t keycode : keys) user().release(keycode);
            finish();
            return now;
        });
    }

    static constexpr const char* row = "the quick brown fox\n";

  private:
    NestedServers m_servers;
    InjectorOnDisplay m_program{m_servers.display()};
    KeyboardProbe m_probe{m_servers.display()};
};

TEST_F(UserHandsTest, aRunWaitsForAHeldControlAndItsTextArrivesWhole) {
    const Terminal terminal(display());
    user().press(xkey::control);
    finish();
    waitFor("keys: 37, modifiers: 0x4");
    auto up = released({xkey::control}, std::chrono::milliseconds(200));
    std::string expected;
    const auto session = program().run();
    ASSERT_TRUE(session->text(row, 0));
    EXPECT_GE(std::chrono::steady_clock::now(), up.get() + std::chrono::milliseconds(10));
    expected += row;
    for (int line = 1; line < 20; ++line) {
        ASSERT_TRUE(session->text(row, 0));
        expected += row;
    }
    EXPECT_EQ(terminal.typed(expected.size()), expected);
    waitFor("keys:, modifiers: 0x0");
}

TEST_F(UserHandsTest, aRunWaitsForEachModifierThatIsPressedWhileItLasts) {
    const Terminal terminal(display());
    const auto session = program().run();
    std::string expected;
    for (const std::uint8_t modifier :
         {xkey::control, xkey::super, xkey::alt, xkey::shift, xkey::rightShift, xkey::altGr}) {
        ASSERT_TRUE(session->stroke(0, 0));
        // What is in flight when the user presses is his as well as ours.
        terminal.typed(expected.size() + 1);
        user().press(modifier);
        const std::string held = "keys: " + std::to_string(modifier) + ",";
        ASSERT_TRUE(eventually([&] {
            finish();
            return probe().held().starts_with(held);
        }));
        auto up = released({modifier}, std::chrono::milliseconds(50));
        ASSERT_TRUE(session->stroke(0, 0));
        EXPECT_GE(std::chrono::steady_clock::now(), up.get() + std::chrono::milliseconds(10));
        expected += "aa";
    }
    EXPECT_EQ(terminal.typed(expected.size()), expected);
    waitFor("keys:, modifiers: 0x0");
}

/// What is on its way to the server then becomes shortcuts.
TEST_F(UserHandsTest, aModifierThatIsPressedWhileATextIsTypedChangesFewOfItsCharacters) {
    CoreClient client(display());
    const std::string text(20000, 'a');
    auto tapped = std::async(std::launch::async, [this] {
        const Typist typist(servers(), Typist::Gap(30));
        for (int time = 0; time < 3; ++time) typist.tap(xkey::control);
    });
    ASSERT_TRUE(program().run()->text(text, 0));
    tapped.get();
    constexpr std::ptrdiff_t most = 32;
    std::ptrdiff_t taps = 0;
    std::ptrdiff_t changed = 0;
    for (const CoreClient::KeyEvent& event : client.events()) {
        if (!event.press) continue;
        if (event.keycode == xkey::control) ++taps;
        if (event.keycode == xkey::a && (event.state & xmask::control) != 0) ++changed;
    }
    EXPECT_EQ(taps, 3);
    EXPECT_LE(changed, taps * most);
}

/// As an application gets them.
TEST_F(UserHandsTest, aRunRestsAfterAModifierThatWasLetGoOfJustBefore) {
    CoreClient client(display());
    const auto session = program().run();
    ASSERT_TRUE(session->stroke(0, 0));
    constexpr int times = 20;
    for (int time = 0; time < times; ++time) {
        user().press(xkey::control);
        finish();
        waitFor("keys: 37, modifiers: 0x4");
        user().release(xkey::control);
        finish();
        ASSERT_TRUE(session->stroke(0, 0));
    }
    std::vector<std::uint32_t> rests;
    std::optional<std::uint32_t> up;
    for (const CoreClient::KeyEvent& event : client.events()) {
        if (event.keycode == xkey::control && !event.press) up = event.time;
        if (event.keycode == xkey::a && event.press && up) rests.push_back(event.time - *up);
    }
    ASSERT_EQ(rests.size(), static_cast<std::size_t>(times));
    // A release of which the server's word is still on its way cannot be heeded.
    const auto rested =
        std::count_if(rests.begin(), rests.end(), [](std::uint32_t rest) { return rest >= 10; });
    EXPECT_GE(rested, times - 2) << testing::PrintToString(rests);
}

TEST_F(UserHandsTest, aModifierThatTheRunHoldsIsUpWhileItWaits) {
    const Terminal terminal(display());
    const auto session = program().run();
    ASSERT_TRUE(session->keyDown(HeldModifier{modifier::shift}));
    waitFor("keys: 50, modifiers: 0x1");
    user().press(xkey::control);
    finish();
    // The server takes the modifiers of the keyboard that spoke last.
    waitFor("keys: 37 50, modifiers: 0x4");
    auto waited = std::async(std::launch::async, [&] {
        EXPECT_EQ(probe().awaitHeld("keys: 37, modifiers: 0x4"), "keys: 37, modifiers: 0x4");
        user().release(xkey::control);
        finish();
    });
    ASSERT_TRUE(session->stroke(0, 0));
    waited.get();
    EXPECT_EQ(terminal.typed(1), "A");
    waitFor("keys: 50, modifiers: 0x1");
}

TEST_F(UserHandsTest, whatAnotherProgramHoldsIsAHandToo) {
    const Terminal terminal(display());
    servers().program().press(xkey::control);
    servers().program().finish();
    auto up = std::async(std::launch::async, [this] {
        Typist(servers().program(), std::chrono::milliseconds(0)).hold(std::chrono::milliseconds(200));
        const auto now = std::chrono::steady_clock::now();
        servers().program().release(xkey::control);
        servers().program().finish();
        return now;
    });
    ASSERT_TRUE(program().run()->stroke(0, 0));
    EXPECT_GE(std::chrono::steady_clock::now(), up.get() + std::chrono::milliseconds(10));
    EXPECT_EQ(terminal.typed(1), "a");
}

TEST_F(UserHandsTest, whatAnotherProgramLeftDownLongAgoIsReleased) {
    const Terminal terminal(display());
    servers().program().press(xkey::control);
    servers().program().finish();
    program().manager().dispatch();
    Typist(servers().program(), std::chrono::milliseconds(0)).hold(std::chrono::milliseconds(2100));
    ASSERT_TRUE(program().run()->stroke(0, 0));
    EXPECT_EQ(terminal.typed(1), "a");
    waitFor("keys:, modifiers: 0x0");
}

TEST_F(UserHandsTest, theStopCombinationAndEscapeWorkWhileARunWaits) {
    program().manager().request({.id = 2,
                                 .name = "stop",
                                 .keyCode = 1,
                                 .modifiers = modifier::control | modifier::command,
                                 .cancelsPlayback = true});
    for (const std::uint8_t key : {xkey::s, xkey::escape}) {
        program().injector().startPlayback();
        const Typist typist(servers(), std::chrono::milliseconds(30));
        typist.press({xkey::control, xkey::super});
        auto pressed = std::async(std::launch::async, [&] { typist.press({key}); });
        EXPECT_EQ(wordsOf(program().run()->stroke(0, 0)), "cancelled");
        pressed.get();
        typist.release({key, xkey::super, xkey::control});
        waitFor("keys:, modifiers: 0x0");
    }
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
    user().release(xkey::control);
    finish();
    const int before = client.presses(xkey::a);
    EXPECT_EQ(wordsOf(program().run()->stroke(0, 0)), "going");
    EXPECT_EQ(client.presses(xkey::a), before + 1);
    EXPECT_EQ(wordsOf(client.events()).back(), "release 38 0x0");
}

/// Its repeats are kept from the applications, and they alone.
TEST_F(UserHandsTest, theLetterOfAHotKeyThatIsStillHeldIsTypedByTheRun) {
    outputOf({"xset", "r", "off"}, {{"DISPLAY", servers().outerDisplay()}});
    const Terminal terminal(display());
    int pressed = 0;
    int released = 0;
    program().manager().install([&pressed](HotKeyId) { ++pressed; }, [&released](HotKeyId) { ++released; });
    program().manager().request({.id = 3,
                                 .name = "play",
                                 .keyCode = 35,
                                 .modifiers = modifier::control | modifier::command,
                                 .cancelsPlayback = false});
    const auto dispatched = [&](const int& count, int expected) {
        return eventually([&] {
            finish();
            program().manager().dispatch();
            return count == expected;
        });
    };
    const Typist typist(servers(), std::chrono::milliseconds(30));
    typist.press({xkey::control, xkey::super, xkey::p});
    ASSERT_TRUE(dispatched(pressed, 1));
    typist.release({xkey::super, xkey::control});
    {
        const auto session = program().run();
        EXPECT_EQ(wordsOf(session->stroke(35, 0)), "going");
        EXPECT_EQ(wordsOf(session->text("pep", 0)), "going");
        EXPECT_EQ(wordsOf(session->keyDown(HeldCode{35})), "going");
        EXPECT_EQ(wordsOf(session->keyUp(HeldCode{35})), "going");
        EXPECT_EQ(wordsOf(session->stroke(35, modifier::control)), "going");
        EXPECT_EQ(wordsOf(session->text(".", 0)), "going");
    }
    EXPECT_EQ(terminal.typed(7), "ppepp\x10.");
    // Still held, and still no letter.
    EXPECT_EQ(released, 0);
    typist.release({xkey::p});
    ASSERT_TRUE(dispatched(released, 1));
    typist.tap(xkey::p);
    EXPECT_EQ(terminal.typed(8), "ppepp\x10.p");
    waitFor("keys:, modifiers: 0x0");
}

TEST_F(UserHandsTest, aControlThatTheRunHoldsStaysWithAHandThatHoldsItToo) {
    CoreClient client(display());
    const auto session = program().run();
    ASSERT_TRUE(session->keyDown(HeldModifier{modifier::control}));
    user().press(xkey::control);
    finish();
    auto waited = std::async(std::launch::async, [&] {
        const Typist typist(servers(), std::chrono::milliseconds(30));
        typist.stroke({xkey::super, xkey::b});
        user().release(xkey::control);
        finish();
    });
    ASSERT_TRUE(session->stroke(0, 0));
    waited.get();
    std::vector<std::string> letters;
    for (const std::string& word : wordsOf(client.events())) {
        if (word.starts_with("press 56") || word.starts_with("press 38")) letters.push_back(word);
    }
    EXPECT_EQ(letters, (std::vector<std::string>{"press 56 0x44", "press 38 0x4"}));
    ASSERT_TRUE(session->keyUp(HeldModifier{modifier::control}));
    waitFor("keys:, modifiers: 0x0");
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

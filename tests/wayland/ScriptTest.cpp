// SPDX-License-Identifier: MIT
//
// keyrill-script under sway, judged by what native programs get.
#include <gtest/gtest.h>
#include <signal.h>

#include <fstream>

#include "cli/FieldScript.h"
#include "compositor/Field.h"
#include "compositor/Foot.h"
#include "compositor/Sway.h"
#include "compositor/WaylandHands.h"
#include "support/Keys.h"

namespace {

class WaylandScriptTest : public testing::Test {
  protected:
    explicit WaylandScriptTest(const std::string& layouts = "us", const std::string& configuration = {})
        : m_sway({.configuration = configuration}), m_hands(m_sway.socket(), layouts) {}

    std::unique_ptr<Child> start(const std::string& script) {
        std::ofstream(m_folder.file("script"), std::ios::binary) << script;
        auto environment = m_sway.environment();
        environment["LC_ALL"] = "C.UTF-8";
        return std::make_unique<Child>(
            std::vector<std::string>{KEYRILL_SCRIPT_TOOL, "run", m_folder.file("script")},
            Child::Options{.environment = environment, .outputFile = m_folder.file("output")});
    }
    /// Lines inside `tell application "System Events"`.
    static std::string keys(const std::string& lines) {
        return "tell application \"System Events\"\n" + lines + "\nend tell\n";
    }
    void play(const std::string& script) {
        EXPECT_EQ(start(script)->wait(), 0) << output();
        EXPECT_EQ(output(), "");
    }
    std::string output() const { return contentOf(m_folder.file("output")); }

    const Sway& sway() const { return m_sway; }
    Sway& sway() { return m_sway; }
    WaylandHands& hands() { return m_hands; }
    const TemporaryFolder& folder() const { return m_folder; }

  private:
    TemporaryFolder m_folder;
    Sway m_sway;
    WaylandHands m_hands;
};

class WaylandLayoutTest : public WaylandScriptTest, public testing::WithParamInterface<const char*> {
  protected:
    WaylandLayoutTest() : WaylandScriptTest(GetParam()) {}
};

// More characters are on no layout than there are unused keys.
TEST_P(WaylandLayoutTest, aTerminalGetsExactlyTheText) {
    const Foot foot(sway());
    play(fieldscript::source);
    EXPECT_EQ(foot.typed(fieldscript::inTerminal().size()), fieldscript::inTerminal());
}

INSTANTIATE_TEST_SUITE_P(Layouts, WaylandLayoutTest, testing::Values("us", "de", "ru", "fr"),
                         [](const auto& layout) { return std::string(layout.param); });

TEST_P(WaylandLayoutTest, aGtkFieldGetsExactlyTheText) {
    const Field field(sway(), Field::Toolkit::gtk);
    play(fieldscript::source);
    EXPECT_EQ(field.saved(fieldscript::inField()), fieldscript::inField());
}

TEST_P(WaylandLayoutTest, aQtFieldGetsExactlyTheText) {
    const Field field(sway(), Field::Toolkit::qt);
    play(fieldscript::source);
    EXPECT_EQ(field.saved(fieldscript::inField()), fieldscript::inField());
}

class WaylandGermanTest : public WaylandScriptTest {
  protected:
    WaylandGermanTest() : WaylandScriptTest("de") {}
};

TEST_F(WaylandGermanTest, keyCodesAreKeysOfTheUsersLayout) {
    const Foot foot(sway());
    // The keys that are Y and Z on an American keyboard.
    play(keys("key code 16\nkey code 6"));
    EXPECT_EQ(foot.typed(2), "zy");
}

// With nobody's key in between: then the seat has no keyboard that tells a layout.
TEST_F(WaylandGermanTest, aRunAfterTheOtherFindsTheSameLayout) {
    const Foot foot(sway());
    for (int i = 0; i < 3; ++i) play(keys("key code 16"));
    EXPECT_EQ(foot.typed(3), "zzz");
}

TEST_F(WaylandScriptTest, theUsersLocksChangeNothingAndStay) {
    const Foot foot(sway());
    hands().stroke({xkey::capsLock});
    play(keys("keystroke \"hello Wörld\"\nkey code 0"));
    hands().stroke({xkey::a});
    const std::string expected = "hello WörldaA";
    EXPECT_EQ(foot.typed(expected.size()), expected);
}

TEST_F(WaylandScriptTest, whatHandsHoldIsNoPartOfWhatIsTyped) {
    const Foot foot(sway());
    hands().press(xkey::shift);
    play(keys("keystroke \"abc\""));
    hands().stroke({xkey::b});
    hands().release(xkey::shift);
    EXPECT_EQ(foot.typed(4), "abcB");
}

TEST_F(WaylandScriptTest, capsLockIsPutAroundAStroke) {
    const Foot foot(sway());
    // 0x800: the key under Caps Lock.
    play(keys("key code 2048\nkey code 0"));
    EXPECT_EQ(foot.typed(2), "Aa");
}

TEST_F(WaylandScriptTest, aCharacterThatNoKeyCanHaveIsNamed) {
    const Foot foot(sway());
    const auto program = start(keys("keystroke \"a\" & (character id 7)"));
    EXPECT_EQ(program->wait(), 1);
    EXPECT_NE(output().find("The character U+0007 cannot be typed with this keyboard layout."),
              std::string::npos)
        << output();
    EXPECT_EQ(foot.typed(), "");
}

class WaylandTwoLayoutsTest : public WaylandScriptTest {
  protected:
    WaylandTwoLayoutsTest() : WaylandScriptTest("us,ru") {}
};

TEST_F(WaylandTwoLayoutsTest, theLayoutInForceIsTheOneThatIsPlayedIn) {
    const Foot foot(sway());
    hands().switchTo(1);
    play(keys("key code 0\nkeystroke \"aф\"\nkey code 1"));
    const std::string expected = "фaфы";
    EXPECT_EQ(foot.typed(expected.size()), expected);
    hands().switchTo(0);
    play(keys("key code 0\nkeystroke \"aф\""));
    EXPECT_EQ(foot.typed(expected.size() + 4), expected + "aaф");
}

struct Reconfiguring {
    const char* name;
    std::vector<std::string> message;
};

/// What configures the user's keyboards anew in mid-play: sway gives ours what it gives them.
class WaylandReconfiguredTest : public WaylandScriptTest, public testing::WithParamInterface<Reconfiguring> {
  protected:
    WaylandReconfiguredTest()
        : WaylandScriptTest("us",
                            "input type:keyboard {\nxkb_layout us,ru,de\n}\n"
                            "input * {\nxkb_layout us,ru,de\n}") {}
};

TEST_P(WaylandReconfiguredTest, leavesTheTextsThatAreTypedBehindItAsTheyAre) {
    const Foot foot(sway());
    const std::string text = "qwzäy;-€";
    const auto program =
        start(keys("repeat 3 times\nkeystroke \"" + text + "\"\ndelay 1.5\nend repeat\nkey code 0"));
    ASSERT_EQ(foot.typed(text.size()), text);
    sway().message(GetParam().message);
    EXPECT_EQ(program->wait(), 0) << output();
    const std::string all = text + text + text;
    EXPECT_EQ(foot.typed(all.size()).substr(0, all.size()), all);
}

INSTANTIATE_TEST_SUITE_P(
    Ways, WaylandReconfiguredTest,
    testing::Values(Reconfiguring{"reload", {"reload"}},
                    Reconfiguring{"layout", {"input", "type:keyboard", "xkb_layout", "fr"}},
                    Reconfiguring{"layoutOfAll", {"input", "*", "xkb_layout", "ru"}},
                    Reconfiguring{"switch", {"input", "type:keyboard", "xkb_switch_layout", "next"}}),
    [](const auto& way) { return std::string(way.param.name); });

// A compositor throws out programs that let events lie.
TEST_F(WaylandScriptTest, aLongTextWaitsForAProgramThatIsBusy) {
    const Foot foot(sway());
    const std::string text(3000, 'x');
    kill(foot.pid(), SIGSTOP);
    play(keys("keystroke \"" + text + "\""));
    kill(foot.pid(), SIGCONT);
    EXPECT_EQ(foot.typed(text.size()), text);
}

/// What wev says of a key and its state.
class WaylandHeldKeyTest : public WaylandScriptTest {
  protected:
    WaylandHeldKeyTest() {
        auto environment = sway().environment();
        m_wev = std::make_unique<Child>(
            std::vector<std::string>{"stdbuf", "-oL", "wev"},
            Child::Options{.environment = environment, .outputFile = folder().file("wev")});
        // It takes a while to be shown; keys go to it then.
        if (!eventually([this] { return sway().tries({"[title=\"wev\"] focus"}); })) {
            throw std::runtime_error("wev does not start");
        }
        eventually([this] { return events().find("wl_keyboard] enter") != std::string::npos; });
    }
    std::string events() const { return contentOf(folder().file("wev")); }
    /// How often the key with this X key code has gone down or up.
    std::size_t count(std::uint8_t keycode, const std::string& state) const {
        const std::string text = events();
        const std::string key = "key: " + std::to_string(keycode) + ";";
        std::size_t times = 0;
        for (std::size_t at = text.find(key); at != std::string::npos; at = text.find(key, at + 1)) {
            const std::size_t end = text.find('\n', at);
            const std::string line = text.substr(at, end == std::string::npos ? end : end - at);
            if (line.find(state) != std::string::npos) ++times;
        }
        return times;
    }

  private:
    std::unique_ptr<Child> m_wev;
};

class WaylandDeathTest : public WaylandHeldKeyTest, public testing::WithParamInterface<int> {};

TEST_P(WaylandDeathTest, noKeyStaysDown) {
    const auto program = start(keys("key down shift\nkey down (0)\ndelay 1000"));
    ASSERT_TRUE(eventually([&] { return count(xkey::a, "pressed") == 1; })) << output() << events();
    program->signal(GetParam());
    EXPECT_EQ(program->wait(), 128 + GetParam());
    EXPECT_TRUE(eventually([&] {
        return count(xkey::a, "released") == 1 && count(xkey::shift, "released") == 1;
    })) << events();
    hands().stroke({xkey::b});
    EXPECT_TRUE(eventually([&] { return count(xkey::b, "released") == 1; }));
    EXPECT_NE(events().find("sym: b "), std::string::npos) << events();
}

INSTANTIATE_TEST_SUITE_P(Signals, WaylandDeathTest, testing::Values(SIGKILL, SIGTERM, SIGINT, SIGHUP));

TEST_F(WaylandHeldKeyTest, whatAScriptForgetsToReleaseIsReleased) {
    play(keys("key down command\nkey down (0)"));
    EXPECT_TRUE(eventually([&] { return count(xkey::a, "released") == 1; })) << events();
    EXPECT_EQ(count(xkey::super, "released"), 1U);
}

TEST_F(WaylandScriptTest, aScriptBringsAProgramToTheFront) {
    const Foot first(sway());
    const Foot second(sway());
    play("tell application \"" + first.program() + "\" to activate\n" + keys("keystroke \"one\""));
    play("activate application \"" + second.program() + "\"\n" + keys("keystroke \"two\""));
    EXPECT_EQ(first.typed(3), "one");
    EXPECT_EQ(second.typed(3), "two");
}

TEST_F(WaylandScriptTest, programsAreNamedFromTheFrontOn) {
    const Foot first(sway());
    const Foot second(sway());
    const Foot third(sway());
    second.focus();
    play("set text item delimiters to \",\"\n" +
         keys("set found to name of every process\nkeystroke item 1 of found & count found\nkeystroke name "
              "of (first "
              "process whose name is \"" +
              third.program() + "\")\nkeystroke (exists (processes whose name is \"nobody\")) as text"));
    const std::string expected = second.program() + "3" + third.program() + "false";
    EXPECT_EQ(second.typed(expected.size()), expected);
}

TEST_F(WaylandScriptTest, theEndOfTheCompositorEndsTheRun) {
    const Foot foot(sway());
    const auto program = start(keys("keystroke \"a\"\ndelay 1000"));
    ASSERT_EQ(foot.typed(1), "a");
    sway().program().signal(SIGKILL);
    EXPECT_EQ(program->wait(), 1);
    EXPECT_EQ(output(), "keyrill-script: The Wayland compositor is gone.\n");
}

}  // namespace

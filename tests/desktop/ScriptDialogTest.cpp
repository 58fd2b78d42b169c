// SPDX-License-Identifier: MIT
#include <signal.h>

#include "desktop/DesktopTest.h"
#include "display/NestedServers.h"
#include "display/Typist.h"
#include "support/Keys.h"

namespace {

constexpr const char* question = "Weekly & <i>report</i>";

std::string toSystemEvents(const std::string& lines) {
    return "tell application \"System Events\"\n" + lines + "end tell\n";
}

/// A macro that asks, played by its hot key while a terminal is being typed into.
class ScriptDialogTest : public testing::TestWithParam<WindowManager> {
  public:
    ScriptDialogTest(const ScriptDialogTest&) = delete;
    ScriptDialogTest& operator=(const ScriptDialogTest&) = delete;

  protected:
    ScriptDialogTest() {
        desktop.startWindowManager(GetParam());
        bystander.emplace(desktop.display());
        terminal.emplace(desktop.display());
    }
    ~ScriptDialogTest() override {
        EXPECT_EQ(bystander->typed(), "");
        EXPECT_EQ(desktop.keysDown(), std::vector<std::string>());
    }

    void awaitQuestion() const {
        const ScreenWindow window = desktop.awaitWindow(question);
        ASSERT_TRUE(eventually([&] { return desktop.hasFocus(window); }));
    }
    /// The hot key; waits until the first question is there.
    void play() const {
        desktop.press("ctrl+super+p");
        awaitQuestion();
    }
    void expectTyped(const std::string& text) const { EXPECT_EQ(terminal->typed(text.size()), text); }
    /// What a key of another program's adds, behind all that came before.
    void expectTypedInTheEnd(const std::string& text) const {
        expectTyped(text);
        ASSERT_TRUE(eventually([this] { return !desktop.shows(question) && terminal->hasFocus(); }));
        desktop.press("period");
        expectTyped(text + ".");
    }

    Desktop desktop;
    /// Does not have the focus.
    std::optional<Terminal> bystander;
    std::optional<Terminal> terminal;
};

TEST_P(ScriptDialogTest, whatTheUserAnswersIsTypedWhereHeWas) {
    const Keyrill keyrill(desktop, toSystemEvents(R"(keystroke "a"
set x to text returned of (display dialog "Who?" default answer "nobody" with title "Weekly & <i>report</i>")
keystroke "[" & x & "]"
)"));
    play();
    expectTyped("a");
    desktop.run({"xdotool", "type", "Ann 7"});
    desktop.press("Return");
    expectTypedInTheEnd("a[Ann 7]");
}

TEST_P(ScriptDialogTest, hotKeysButStopDoNothingWhileAQuestionIsOpen) {
    const Keyrill keyrill(desktop, toSystemEvents(R"(keystroke "a"
display dialog "Go on?" with title "Weekly & <i>report</i>"
keystroke "b"
)"));
    play();
    for (const char* hotKey : {"ctrl+super+r", "ctrl+super+p", "ctrl+super+m"}) {
        desktop.press(hotKey);
    }
    desktop.press("Return");
    expectTypedInTheEnd("ab");
    EXPECT_FALSE(desktop.shows(title::overlay));
    EXPECT_FALSE(desktop.shows(title::prompt));
    desktop.press("ctrl+super+r");
    desktop.awaitWindow(title::overlay);
}

TEST_P(ScriptDialogTest, escapeEndsTheMacroSilentlyAndTheNextPlayWorks) {
    const Keyrill keyrill(desktop, toSystemEvents(R"(keystroke "a"
display dialog "Go on?" with title "Weekly & <i>report</i>"
keystroke "b"
)"));
    play();
    desktop.press("Escape");
    expectTypedInTheEnd("a");
    play();
    desktop.press("Return");
    expectTypedInTheEnd("a.ab");
    EXPECT_EQ(keyrill.output(), "");
}

TEST_P(ScriptDialogTest, aCancelThatTheScriptExpectsDoesNotEndIt) {
    const Keyrill keyrill(desktop, toSystemEvents(R"(try
display dialog "Go on?" with title "Weekly & <i>report</i>"
on error message number n
keystroke n as text
end try
)"));
    play();
    desktop.press("Escape");
    expectTypedInTheEnd("-128");
}

TEST_P(ScriptDialogTest, givesUpAfterItsTime) {
    const Keyrill keyrill(desktop, toSystemEvents(R"(keystroke "a"
set r to display dialog "Go on?" with title "Weekly & <i>report</i>" giving up after 0.5
keystroke gave up of r as text
)"));
    play();
    expectTypedInTheEnd("atrue");
}

TEST_P(ScriptDialogTest, anAlertAnswersWithTheButtonThatWasPressed) {
    const Keyrill keyrill(
        desktop,
        toSystemEvents(
            R"(set r to display alert "Weekly & <i>report</i>" message "Done." buttons {"Left", "Middle", "Right"}
keystroke button returned of r
)"));
    desktop.press("ctrl+super+p");
    const ScreenWindow window = desktop.awaitWindow("Keyrill Macro");
    ASSERT_TRUE(eventually([&] { return desktop.hasFocus(window); }));
    for (const char* keys : {"shift+Tab", "shift+Tab", "space"}) desktop.press(keys);
    ASSERT_TRUE(eventually([&] { return !desktop.shows("Keyrill Macro"); }));
    expectTypedInTheEnd("Left");
}

TEST_P(ScriptDialogTest, whatTheMacroHoldsIsUpWhileTheUserAnswers) {
    const Keyrill keyrill(desktop, toSystemEvents(R"(key down shift
key code 0
set x to text returned of (display dialog "Who?" default answer "" with title "Weekly & <i>report</i>")
key code 11
key up shift
keystroke x
)"));
    play();
    EXPECT_EQ(desktop.keysDown(), std::vector<std::string>());
    desktop.run({"xdotool", "type", "ann"});
    desktop.press("Return");
    expectTypedInTheEnd("ABann");
}

TEST_P(ScriptDialogTest, aHeldEscapeEndsAMacroThatAsksForEver) {
    const Keyrill keyrill(desktop, toSystemEvents(R"(repeat
try
keystroke "a"
display dialog "Go on?" buttons {"Go on"} default button 1 with title "Weekly & <i>report</i>"
end try
end repeat
)"));
    play();
    expectTyped("a");
    desktop.press("Escape");
    awaitQuestion();
    desktop.press("Return");
    expectTyped("aa");
    awaitQuestion();
    desktop.run({"xdotool", "keydown", "Escape"});
    ASSERT_TRUE(eventually([this] { return !desktop.shows(question); }));
    desktop.run({"xdotool", "keyup", "Escape"});
    // A release alone types nothing.
    expectTypedInTheEnd("aa");
}

TEST_P(ScriptDialogTest, theProgramEndsWithAQuestionOpen) {
    Keyrill keyrill(desktop, toSystemEvents(R"(key down shift
repeat
try
keystroke "a"
display dialog "Go on?" with title "Weekly & <i>report</i>"
end try
end repeat
)"));
    play();
    keyrill.child().signal(SIGTERM);
    EXPECT_EQ(keyrill.child().wait(std::chrono::seconds(5)), 0);
    EXPECT_EQ(terminal->typed(1), "A");
}

INSTANTIATE_TEST_SUITE_P(Manager, ScriptDialogTest,
                         testing::Values(WindowManager::openbox, WindowManager::xfwm4, WindowManager::none),
                         nameOfParameter<WindowManager>);

/// A question that a user with a real keyboard answers.
class AnsweredByHandTest : public testing::Test {
  protected:
    AnsweredByHandTest() {
        desktop.startWindowManager();
        terminal.emplace(desktop.display());
        keyrill.emplace(desktop, toSystemEvents(R"(try
display dialog "Go on?" with title "Weekly & <i>report</i>"
keystroke "yes"
on error
keystroke "no"
end try
)"));
        desktop.run({"xdotool", "key", "ctrl+super+p"});
        const ScreenWindow window = desktop.awaitWindow(question);
        EXPECT_TRUE(eventually([&] { return desktop.hasFocus(window); }));
    }

    NestedServers servers;
    Desktop desktop{servers.display()};
    std::optional<Terminal> terminal;
    std::optional<Keyrill> keyrill;
};

TEST_F(AnsweredByHandTest, aTappedEscapeBelongsToTheQuestion) {
    servers.user().tap(xkey::escape);
    servers.finish();
    EXPECT_EQ(terminal->typed(2), "no");
}

TEST_F(AnsweredByHandTest, theStopCombinationEndsTheMacroWithoutAnAnswer) {
    const Typist typist(servers, Typist::Gap(80));
    typist.stroke({xkey::control, xkey::super, xkey::s});
    ASSERT_TRUE(eventually([this] { return !desktop.shows(question) && terminal->hasFocus(); }));
    typist.tap(xkey::period);
    EXPECT_EQ(terminal->typed(1), ".");
}

}  // namespace

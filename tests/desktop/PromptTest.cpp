// SPDX-License-Identifier: MIT
#include "desktop/DesktopTest.h"

namespace {

constexpr const char* script = "tell application \"System Events\" to key code 0\n";

/// The prompt, called by its hot key while a terminal is being typed into.
class PromptTest : public testing::TestWithParam<WindowManager> {
  protected:
    PromptTest() {
        desktop.startWindowManager(GetParam());
        bystander.emplace(desktop.display());
        terminal.emplace(desktop.display());
    }

    void openPrompt() const {
        desktop.press("ctrl+super+m");
        const ScreenWindow prompt = desktop.awaitWindow(title::prompt);
        ASSERT_TRUE(eventually([&] { return desktop.hasFocus(prompt); }));
    }
    /// Types a count and Return, and waits until the prompt is gone.
    void playTimes(const std::string& count) const {
        openPrompt();
        desktop.run({"xdotool", "type", "--", count});
        desktop.press("Return");
        ASSERT_TRUE(eventually([&] { return !desktop.shows(title::prompt) && terminal->hasFocus(); }));
    }

    Desktop desktop;
    /// Does not have the focus.
    std::optional<Terminal> bystander;
    std::optional<Terminal> terminal;
};

TEST_P(PromptTest, playsAsOftenAsItIsTold) {
    const Keyrill keyrill(desktop, script);
    desktop.press("x");
    EXPECT_EQ(terminal->typed(1), "x");
    playTimes("3");
    EXPECT_EQ(terminal->typed(4), "xaaa");
    for (const char* none : {"0", "-2", "abc"}) playTimes(none);
    playTimes("2x");
    EXPECT_EQ(terminal->typed(6), "xaaaaa");
    desktop.press("period");
    EXPECT_EQ(terminal->typed(7), "xaaaaa.");
    EXPECT_EQ(bystander->typed(), "");
}

TEST_P(PromptTest, escapeClosesItWithoutPlaying) {
    const Keyrill keyrill(desktop, script);
    openPrompt();
    desktop.press("Escape");
    EXPECT_TRUE(eventually([&] { return !desktop.shows(title::prompt) && terminal->hasFocus(); }));
    desktop.press("period");
    EXPECT_EQ(terminal->typed(1), ".");
}

TEST_P(PromptTest, staysWhileThereIsNothingToPlay) {
    const Keyrill keyrill(desktop);
    openPrompt();
    desktop.press("Return");
    desktop.press("Escape");
    EXPECT_TRUE(eventually([&] { return !desktop.shows(title::prompt) && terminal->hasFocus(); }));
    desktop.press("period");
    EXPECT_EQ(terminal->typed(1), ".");
}

INSTANTIATE_TEST_SUITE_P(WindowManagers, PromptTest,
                         testing::Values(WindowManager::none, WindowManager::openbox, WindowManager::xfwm4),
                         nameOfParameter<WindowManager>);

}  // namespace

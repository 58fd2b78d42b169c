// SPDX-License-Identifier: MIT
#include "desktop/DesktopTest.h"

namespace {

constexpr const char* script = "tell application \"System Events\" to key code 0\n";

class PromptTest : public testing::TestWithParam<bool> {
  protected:
    PromptTest() {
        if (GetParam()) desktop.startWindowManager();
    }

    void press(const std::string& combination) const { desktop.run({"xdotool", "key", combination}); }
    bool promptHasFocus() const {
        const std::string prompt = desktop.window(title::prompt);
        return !prompt.empty() && desktop.run({"xdotool", "getwindowfocus", "-f"}) == prompt + "\n";
    }
    void openPrompt() const {
        press("ctrl+super+m");
        ASSERT_TRUE(eventually([this] { return promptHasFocus(); }));
    }

    Desktop desktop;
};

TEST_P(PromptTest, playsAsOftenAsItIsTold) {
    const Terminal terminal(desktop.display());
    const Keyrill keyrill(desktop, script);
    openPrompt();
    press("3");
    press("Return");
    EXPECT_EQ(terminal.typed(3), "aaa");
    press("period");
    EXPECT_EQ(terminal.typed(4), "aaa.");
    EXPECT_TRUE(terminal.hasFocus());
    EXPECT_FALSE(desktop.shows(title::prompt));
}

TEST_P(PromptTest, escapeClosesItWithoutPlaying) {
    const Terminal terminal(desktop.display());
    const Keyrill keyrill(desktop, script);
    openPrompt();
    press("Escape");
    EXPECT_TRUE(eventually([&] { return !desktop.shows(title::prompt) && terminal.hasFocus(); }));
    press("period");
    EXPECT_EQ(terminal.typed(1), ".");
}

TEST_P(PromptTest, staysWhileThereIsNothingToPlay) {
    const Terminal terminal(desktop.display());
    const Keyrill keyrill(desktop);
    openPrompt();
    press("Return");
    press("Escape");
    EXPECT_TRUE(eventually([&] { return !desktop.shows(title::prompt); }));
    EXPECT_EQ(terminal.typed(), "");
}

std::string nameOf(const testing::TestParamInfo<bool>& info) { return info.param ? "managed" : "unmanaged"; }

INSTANTIATE_TEST_SUITE_P(WindowManager, PromptTest, testing::Bool(), nameOf);

}  // namespace

// SPDX-License-Identifier: MIT
#include <tuple>

#include "desktop/DesktopTest.h"
#include "desktop/StatusMenuClicks.h"

namespace {

constexpr const char* script = "tell application \"System Events\" to key code 0\n";
/// Of the entries that can be chosen as long as nothing has been recorded.
constexpr int helpEntry = 5;

/// A panel that is open while a macro is played multiple times into a terminal.
class PanelsAfterPlayTest : public testing::TestWithParam<std::tuple<TrayKind, WindowManager>> {
  protected:
    PanelsAfterPlayTest() {
        desktop.startWindowManager(std::get<1>(GetParam()));
        desktop.startTray(std::get<0>(GetParam()));
        bystander.emplace(desktop.display());
        terminal.emplace(desktop.display());
        keyrill.emplace(desktop, script);
    }

    /// "About" is the last line of the help, so the first one upwards.
    void openAbout() const {
        StatusMenuClicks menu(desktop);
        menu.open();
        menu.chooseByKeys(helpEntry, {"Right", "Up", "Return"});
        const ScreenWindow about = desktop.awaitWindow(title::about);
        ASSERT_TRUE(eventually([&] { return desktop.hasFocus(about); }));
    }
    bool isManaged() const { return std::get<1>(GetParam()) != WindowManager::none; }
    /// By the server's account, and by the window manager's.
    bool isTypedInto(const std::string& window) const {
        const auto number = static_cast<std::uint32_t>(std::stoul(window));
        if (isManaged() && desktop.screen().activeWindow() != number) return false;
        return terminal->hasFocus();
    }
    void giveTerminalFocus() const {
        if (isManaged()) {
            desktop.run({"xdotool", "windowactivate", terminal->window()});
        } else {
            terminal->focus();
        }
        ASSERT_TRUE(eventually([this] { return isTypedInto(terminal->window()); }));
    }
    void playByPrompt(const std::string& count) const {
        desktop.press("ctrl+super+m");
        const ScreenWindow prompt = desktop.awaitWindow(title::prompt);
        ASSERT_TRUE(eventually([&] { return desktop.hasFocus(prompt); }));
        desktop.press(count);
        desktop.press("Return");
    }
    /// Waits until the window manager has done all that it had been asked for so far: it answers in order.
    void awaitManager() {
        if (!isManaged()) return;
        const std::string desktops = std::to_string(++numberOfDesktops);
        desktop.run({"xdotool", "set_num_desktops", desktops});
        ASSERT_TRUE(eventually([&] {
            return desktop.run({"xdotool", "get_num_desktops"}) == desktops + "\n";
        }));
    }

    Desktop desktop;
    /// Does not have the focus.
    std::optional<Terminal> bystander;
    std::optional<Terminal> terminal;
    std::optional<Keyrill> keyrill;
    int numberOfDesktops = 4;
};

TEST_P(PanelsAfterPlayTest, comeBackAndLeaveTheKeysToTheProgramThatIsTypedInto) {
    openAbout();
    giveTerminalFocus();
    std::string typed;
    for (int round = 0; round < 3; ++round) {
        playByPrompt("2");
        typed += "aa";
        ASSERT_EQ(terminal->typed(typed.size()), typed) << "the bystander got " << bystander->typed();
        ASSERT_TRUE(eventually([this] { return desktop.shows(title::about); }));
        awaitManager();
        EXPECT_TRUE(isTypedInto(terminal->window())) << "the focus is on " << desktop.screen().focus();
        desktop.press("period");
        typed += ".";
        ASSERT_EQ(terminal->typed(typed.size()), typed) << "the bystander got " << bystander->typed();
    }
    EXPECT_EQ(bystander->typed(), "");
}

std::string nameOfDesktop(const testing::TestParamInfo<std::tuple<TrayKind, WindowManager>>& info) {
    return nameOf(std::get<0>(info.param)) + "Under" + nameOf(std::get<1>(info.param));
}

INSTANTIATE_TEST_SUITE_P(Unmanaged, PanelsAfterPlayTest,
                         testing::Values(std::tuple(TrayKind::docking, WindowManager::none)), nameOfDesktop);
INSTANTIATE_TEST_SUITE_P(Managed, PanelsAfterPlayTest,
                         testing::Combine(testing::Values(TrayKind::docking, TrayKind::statusNotifier),
                                          testing::Values(WindowManager::openbox, WindowManager::xfwm4)),
                         nameOfDesktop);

}  // namespace

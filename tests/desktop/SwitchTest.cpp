// SPDX-License-Identifier: MIT
//
// Windows that are switched by Alt+Tab: typed by a person in a recording, and played. A window manager that
// has been given the keys too fast keeps the keyboard.
//
// KEYRILL_SWITCHES=10 repeats each as often.
#include <array>
#include <optional>
#include <tuple>

#include "desktop/DesktopTest.h"
#include "display/Typist.h"
#include "support/Programs.h"

namespace {

int numberOfPlays() {
    const char* wanted = std::getenv("KEYRILL_SWITCHES");
    return wanted == nullptr ? 2 : std::stoi(wanted);
}

/// How often Tab is pressed while Alt is down.
class SwitchTest : public testing::TestWithParam<std::tuple<WindowManager, int>> {
  protected:
    SwitchTest() {
        const WindowManager manager = std::get<WindowManager>(GetParam());
        // Its keys are settings.
        if (manager == WindowManager::xfwm4) desktop.startBus().letIn("org.xfce.Xfconf");
        desktop.startWindowManager(manager);
        // Without one the control window comes, which is a window more to switch to. Others bring their own.
        if (manager == WindowManager::openbox || manager == WindowManager::xfwm4) desktop.startTray();
        EXPECT_TRUE(eventually([this] { return desktop.screen().isOwned("_NET_SYSTEM_TRAY_S0"); }));
        for (int y = 0; y < 3; ++y) {
            windows.push_back(std::make_unique<Terminal>(
                desktop.display(),
                Terminal::Options{.xterm = {"-geometry", "40x5+100+" + std::to_string(200 * y)}}));
        }
        product.emplace(std::vector<std::string>{programs::keyrill}, desktop.options("product.log"));
        EXPECT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
    }

    /// All have been used, the last one last.
    void useAll() const {
        for (const auto& window : windows) {
            desktop.run({"xdotool", "mousemove", "--window", window->window(), "50", "20", "click", "1"});
            ASSERT_TRUE(eventually([&] { return isActive(*window) && window->hasFocus(); }));
        }
    }
    bool isActive(const Terminal& window) const {
        return std::to_string(desktop.screen().activeWindow()) == window.window();
    }
    std::string nameOfActive() const {
        for (std::size_t index = 0; index < windows.size(); ++index) {
            if (isActive(*windows[index])) return "number " + std::to_string(index);
        }
        return "none of the terminals";
    }
    /// Each Tab goes one back in the order of use.
    Terminal& expected() const {
        return *windows.at(windows.size() - 1 - static_cast<std::size_t>(std::get<int>(GetParam())));
    }
    void switchByHand() const {
        typist.press({xkey::alt});
        for (int tab = 0; tab < std::get<int>(GetParam()); ++tab) typist.tap(xkey::tab);
        typist.release({xkey::alt});
    }
    /// The window is the one that all programs take for the active one, and nobody holds the keyboard.
    void expectSwitched(const char* how) const {
        const bool isDone = eventually([this] {
            return isActive(expected()) && expected().hasFocus() && !desktop.screen().isKeyboardGrabbed();
        });
        EXPECT_TRUE(isDone) << how << ": the keyboard is "
                            << (desktop.screen().isKeyboardGrabbed() ? "held" : "free")
                            << ", the active window is " << nameOfActive();
        if (!isDone) return;
        const std::string before = expected().typed();
        typist.tap(xkey::a);
        EXPECT_EQ(expected().typed(before.size() + 1), before + "a");
    }

    Desktop desktop;
    std::vector<std::unique_ptr<Terminal>> windows;
    std::optional<Child> product;
    Hands hands{desktop.display()};
    Typist typist{hands, std::chrono::milliseconds(80)};
};

TEST_P(SwitchTest, isPlayedAsItWasTyped) {
    for (int play = 0; play < numberOfPlays(); ++play) {
        SCOPED_TRACE(play);
        useAll();
        typist.stroke({xkey::control, xkey::super, xkey::r});
        desktop.awaitWindow(title::overlay);
        switchByHand();
        typist.stroke({xkey::control, xkey::super, xkey::s});
        ASSERT_TRUE(eventually([this] { return !desktop.shows(title::overlay); }));
        expectSwitched("typed");
        useAll();
        typist.stroke({xkey::control, xkey::super, xkey::p});
        expectSwitched("played");
        if (HasFailure()) return;
    }
    EXPECT_TRUE(eventually([this] { return desktop.keysDown().empty(); }));
}

/// What follows a switch with no more time between the keys than a recording keeps.
class TypingAfterSwitchTest : public SwitchTest {};

TEST_P(TypingAfterSwitchTest, whatIsTypedAfterASwitchArrivesInItsWindow) {
    Terminal& first = *windows.back();
    const auto type = [this](std::initializer_list<std::uint8_t> keys) {
        for (const std::uint8_t key : keys) typist.tap(key);
    };
    useAll();
    typist.stroke({xkey::control, xkey::super, xkey::r});
    desktop.awaitWindow(title::overlay);
    type({xkey::a, xkey::b});
    switchByHand();
    ASSERT_TRUE(eventually([this] { return isActive(expected()) && expected().hasFocus(); }));
    type({xkey::r, xkey::s});
    typist.stroke({xkey::control, xkey::super, xkey::s});
    ASSERT_TRUE(eventually([this] { return !desktop.shows(title::overlay); }));
    ASSERT_EQ(first.typed(2), "ab");
    ASSERT_EQ(expected().typed(2), "rs");
    for (int play = 1; play <= 2 * numberOfPlays(); ++play) {
        SCOPED_TRACE(play);
        useAll();
        typist.stroke({xkey::control, xkey::super, xkey::p});
        const std::size_t length = 2 * (static_cast<std::size_t>(play) + 1);
        ASSERT_TRUE(expected().typed(length).ends_with("rs")) << expected().typed();
        ASSERT_TRUE(first.typed(length).ends_with("ab")) << first.typed();
        ASSERT_EQ(first.typed().size() + expected().typed().size(), 2 * length);
    }
}

std::string nameOfSwitch(const testing::TestParamInfo<std::tuple<WindowManager, int>>& condition) {
    return nameOf(std::get<WindowManager>(condition.param)) +
           (std::get<int>(condition.param) == 1 ? "ToTheNext" : "ToTheOneAfter");
}

const auto managers = testing::Values(WindowManager::openbox, WindowManager::fluxbox, WindowManager::xfwm4,
                                      WindowManager::jwm, WindowManager::icewm);

INSTANTIATE_TEST_SUITE_P(Managers, SwitchTest, testing::Combine(managers, testing::Values(1, 2)),
                         nameOfSwitch);
INSTANTIATE_TEST_SUITE_P(Managers, TypingAfterSwitchTest, testing::Combine(managers, testing::Values(1)),
                         nameOfSwitch);

}  // namespace

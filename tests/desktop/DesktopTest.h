// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "desktop/Desktop.h"
#include "display/Hands.h"
#include "support/Keys.h"

inline std::string nameOf(TrayKind kind) { return kind == TrayKind::docking ? "docking" : "statusNotifier"; }
inline std::string nameOf(WindowManager manager) {
    switch (manager) {
        case WindowManager::none:
            return "unmanaged";
        case WindowManager::openbox:
            return "openbox";
        case WindowManager::xfwm4:
            return "xfwm4";
        case WindowManager::fluxbox:
            return "fluxbox";
        case WindowManager::jwm:
            return "jwm";
        case WindowManager::icewm:
            return "icewm";
    }
    return "";
}
/// The last argument of INSTANTIATE_TEST_SUITE_P.
template <typename Parameter>
std::string nameOfParameter(const testing::TestParamInfo<Parameter>& info) {
    return nameOf(info.param);
}

/// A desktop with a window manager and a terminal that is typed into.
class DesktopTest : public testing::Test {
  protected:
    DesktopTest() { desktop.startWindowManager(); }

    void press(const std::string& combination) const { desktop.press(combination); }
    void record() const { press("ctrl+super+r"); }
    void stop() const { press("ctrl+super+s"); }
    void play() const { press("ctrl+super+p"); }

    /// Makes the window manager give one of the program's windows the focus.
    void giveFocus(const char* title) const {
        const ScreenWindow window = desktop.awaitWindow(title);
        desktop.run({"xdotool", "windowactivate", std::to_string(window.number)});
        desktop.awaitFocus(title);
    }
    /// Closes a window by the window manager's key. A shortcut field holds all keys until the last one is let
    /// go; that of the preferences, where it has just got the focus, may take the first one for itself.
    void close(const char* window) const {
        giveFocus(window);
        const auto closes = [&] {
            EXPECT_TRUE(eventually([this] { return !desktop.screen().isKeyboardGrabbed(); }));
            press("alt+F4");
            return eventually([&] { return !desktop.shows(window); });
        };
        ASSERT_TRUE(closes() || (window == std::string_view(title::preferences) && closes()));
    }

    /// Whether that lock's light is on.
    bool isLocked(const std::string& lock) const {
        return desktop.run({"xset", "q"}).find(lock + ":   on") != std::string::npos ||
               desktop.run({"xset", "q"}).find(lock + ":    on") != std::string::npos;
    }

    Desktop desktop;
};

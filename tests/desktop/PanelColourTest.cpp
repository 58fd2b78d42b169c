// SPDX-License-Identifier: MIT
#include <string>
#include <tuple>

#include "desktop/DesktopTest.h"
#include "desktop/StatusMenuClicks.h"
#include "support/Programs.h"

namespace {

/// A panel of either colour, which finds the program's icons in its theme or does not, in a session that is
/// known to paint them or in another.
class PanelColourTest : public testing::TestWithParam<std::tuple<bool, bool, std::string>> {
  protected:
    bool isDark() const { return std::get<0>(GetParam()); }
    bool isInstalled() const { return std::get<1>(GetParam()); }
    const std::string& session() const { return std::get<2>(GetParam()); }

    Desktop desktop;
};

TEST_P(PanelColourTest, theIconIsToBeSeen) {
    const std::string folders = std::string(programs::share) + ":/usr/local/share:/usr/share";
    if (isInstalled()) desktop.setEnvironment("XDG_DATA_DIRS", folders);
    desktop.setEnvironment("XDG_CURRENT_DESKTOP", session());
    desktop.startTray(TrayKind::statusNotifier, isDark());
    const Keyrill keyrill(desktop);
    // What cannot be seen on its ground has no colour that differs much from it.
    constexpr int contrast = 100;
    constexpr int grey = 128;
    EXPECT_TRUE(eventually([this] {
        const std::optional<ScreenWindow> icon = desktop.tray().icon();
        if (!icon) return false;
        ScreenWindow corner = *icon;
        corner.width = corner.height = 1;
        const int ground = desktop.screen().brightness(corner).most;
        const Screen::Brightness all = desktop.screen().brightness(*icon);
        return (ground < grey) == isDark() && (isDark() ? all.most - ground : ground - all.least) >= contrast;
    }));
}

std::string nameOfPanel(const testing::TestParamInfo<std::tuple<bool, bool, std::string>>& info) {
    return std::string(std::get<0>(info.param) ? "dark" : "light") +
           (std::get<1>(info.param) ? "Installed" : "NotInstalled") + std::get<2>(info.param);
}

INSTANTIATE_TEST_SUITE_P(Panels, PanelColourTest,
                         testing::Combine(testing::Bool(), testing::Bool(), testing::Values("XFCE", "LXQt")),
                         nameOfPanel);

}  // namespace

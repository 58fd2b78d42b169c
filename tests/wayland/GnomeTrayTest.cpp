// SPDX-License-Identifier: MIT
//
// keyrill under a real GNOME with the tray of the extension AppIndicator.
#include "compositor/Field.h"
#include "wayland/GnomeSession.h"

namespace {

class GnomeTrayTest : public GnomeSessionTest {
  protected:
    GnomeTrayTest()
        : GnomeSessionTest(
              {{"org.gnome.shell", "disable-user-extensions", "false"},
               {"org.gnome.shell", "enabled-extensions", "['ubuntu-appindicators@ubuntu.com']"}}) {}

    /// What an expression about the `icon` in the shell's panel is, null where there is none.
    std::string icon(const std::string& asked) const {
        return shell().evaluate(
            "(() => { const name = Object.keys(Main.panel.statusArea).find(one => "
            "one.startsWith('appindicator-')); "
            "const icon = name ? Main.panel.statusArea[name] : null; return " +
            asked + "; })()");
    }
    bool hasIcon() const { return icon("Boolean(icon && icon.visible)") == "true"; }
};

TEST_F(GnomeTrayTest, theIconIsInThePanelAndItsMenuWorks) {
    agreeToHotKeys();
    launch("keystroke \"ab\"");
    ASSERT_TRUE(eventually([this] { return hasIcon(); }, std::chrono::seconds(30))) << log();
    awaitHotKeys();
    EXPECT_FALSE(shell().shows("Keyrill"));
    const auto items = [this] {
        return icon(
            "icon.menu._getMenuItems().filter(item => item.visible)"
            ".map(item => item.label ? item.label.text : '').join('|')");
    };
    const auto opens = [&](const std::string& expected) {
        icon("icon.menu.open(), true");
        return eventually([&] { return items().starts_with("\"" + expected); });
    };
    EXPECT_TRUE(opens("Start Recording||History|")) << items();
    hands().stroke({xkey::arrowDown});
    hands().stroke({xkey::returnKey});
    EXPECT_TRUE(hasFocus(recordHere)) << shell().front();
    keep("tray-recording");
    hands().type("a");
    strokeHotKey(xkey::s);
    ASSERT_TRUE(isGone(recordHere));
    EXPECT_TRUE(opens("Start Recording|Play|Play Multiple Times...||History|")) << items();
    keep("tray");
}

}  // namespace

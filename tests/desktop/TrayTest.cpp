// SPDX-License-Identifier: MIT
#include "desktop/DesktopTest.h"
#include "desktop/StatusMenuClicks.h"

namespace {

class TrayTest : public DesktopTest {
  protected:
    bool comes(const char* title) const {
        return eventually([&] { return desktop.shows(title); });
    }
    bool goes(const char* title) const {
        return eventually([&] { return !desktop.shows(title); });
    }
};

TEST_F(TrayTest, theIconIsInTheTray) {
    desktop.startTray();
    const Keyrill keyrill(desktop);
    EXPECT_TRUE(comes(title::trayIcon));
    EXPECT_FALSE(desktop.shows(title::control));
}

TEST_F(TrayTest, aWindowStandsInUntilATrayComesAndWhenItGoes) {
    const Terminal terminal(desktop.display());
    const Keyrill keyrill(desktop);
    EXPECT_TRUE(comes(title::control));
    EXPECT_TRUE(terminal.hasFocus());
    desktop.startTray();
    EXPECT_TRUE(comes(title::trayIcon));
    EXPECT_TRUE(goes(title::control));
    desktop.endTray();
    EXPECT_TRUE(comes(title::control));
    EXPECT_TRUE(terminal.hasFocus());
    desktop.startTray();
    EXPECT_TRUE(comes(title::trayIcon));
    EXPECT_TRUE(goes(title::control));
}

TEST_F(TrayTest, recordsAndPlaysByTheMenu) {
    desktop.startTray();
    const Terminal terminal(desktop.display());
    const Keyrill keyrill(desktop);
    StatusMenuClicks menu(desktop);
    menu.open();
    menu.choose(1);
    EXPECT_TRUE(comes(title::overlay));
    press("x");
    terminal.typed(1);
    menu.open();
    menu.choose(1);
    EXPECT_TRUE(goes(title::overlay));
    menu.open();
    menu.choose(2);
    EXPECT_EQ(terminal.typed(2), "xx");
}

TEST_F(TrayTest, quitsByTheMenu) {
    desktop.startTray();
    Keyrill keyrill(desktop);
    StatusMenuClicks menu(desktop);
    menu.open();
    // The last entry lies below two lines.
    menu.chooseLast();
    EXPECT_EQ(keyrill.child().wait(), 0);
}

}  // namespace

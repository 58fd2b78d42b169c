// SPDX-License-Identifier: MIT
#include "desktop/DesktopTest.h"
#include "desktop/StatusMenuClicks.h"

namespace {

/// With a tray of each kind.
class TrayTest : public DesktopTest, public testing::WithParamInterface<TrayKind> {
  protected:
    TrayTest() {
        if (GetParam() == TrayKind::statusNotifier) desktop.startBus();
    }

    bool comes(const char* title) const {
        return eventually([&] { return desktop.shows(title); });
    }
    bool goes(const char* title) const {
        return eventually([&] { return !desktop.shows(title); });
    }
    bool iconComes() const {
        return eventually([&] { return desktop.tray().icon().has_value(); });
    }
};

TEST_P(TrayTest, anIconIsTheProgramsPlace) {
    desktop.startTray(GetParam());
    const Keyrill keyrill(desktop);
    EXPECT_TRUE(iconComes());
    EXPECT_FALSE(desktop.shows(title::control));
}

TEST_P(TrayTest, aWindowStandsInWhileThereIsNoTray) {
    const Terminal terminal(desktop.display());
    const Keyrill keyrill(desktop);
    EXPECT_TRUE(comes(title::control));
    EXPECT_TRUE(terminal.hasFocus());
    desktop.startTray(GetParam());
    EXPECT_TRUE(iconComes());
    EXPECT_TRUE(goes(title::control));
    desktop.killTray();
    EXPECT_TRUE(comes(title::control));
    EXPECT_TRUE(terminal.hasFocus());
    press("x");
    EXPECT_EQ(terminal.typed(1), "x");
    desktop.startTray(GetParam());
    EXPECT_TRUE(iconComes());
    EXPECT_TRUE(goes(title::control));
    StatusMenuClicks menu(desktop);
    menu.open();
    menu.choose(1);
    EXPECT_TRUE(comes(title::overlay));
}

TEST_P(TrayTest, recordsAndPlaysByTheMenu) {
    desktop.startTray(GetParam());
    const Terminal terminal(desktop.display());
    const Keyrill keyrill(desktop);
    StatusMenuClicks menu(desktop);
    menu.open();
    menu.chooseByKeys(1);
    EXPECT_TRUE(comes(title::overlay));
    press("x");
    terminal.typed(1);
    menu.open();
    menu.choose(1);
    EXPECT_TRUE(goes(title::overlay));
    menu.open();
    menu.choose(2);
    EXPECT_EQ(terminal.typed(2), "xx");
    menu.open();
    menu.chooseByKeys(2);
    EXPECT_EQ(terminal.typed(3), "xxx");
    EXPECT_TRUE(terminal.hasFocus());
}

TEST_P(TrayTest, quitsByTheMenu) {
    desktop.startTray(GetParam());
    Keyrill keyrill(desktop);
    StatusMenuClicks menu(desktop);
    menu.open();
    menu.chooseLast();
    EXPECT_EQ(keyrill.child().wait(), 0);
}

INSTANTIATE_TEST_SUITE_P(Kinds, TrayTest, testing::Values(TrayKind::docking, TrayKind::statusNotifier),
                         nameOfParameter<TrayKind>);

}  // namespace

// SPDX-License-Identifier: MIT
#include <tuple>

#include "desktop/DesktopTest.h"
#include "desktop/SavedMacro.h"
#include "desktop/StatusMenuClicks.h"
#include "display/Typist.h"
#include "support/Keys.h"

namespace {

// The entries that can be seen once something has been recorded.
constexpr int playEntry = 2;
constexpr int multiplePlayEntry = 3;
constexpr int historyEntry = 4;

/// The menu of a tray of each kind under each window manager, while a terminal is being typed into.
class MenuTest : public testing::TestWithParam<std::tuple<TrayKind, WindowManager>> {
  protected:
    MenuTest() {
        desktop.startWindowManager(std::get<1>(GetParam()));
        desktop.startTray(std::get<0>(GetParam()));
        bystander.emplace(desktop.display());
        terminal.emplace(desktop.display());
        keyrill.emplace(desktop);
        menu.emplace(desktop);
    }

    void record(const std::string& key) {
        desktop.press("ctrl+super+r");
        desktop.awaitWindow(title::overlay);
        desktop.press(key);
        desktop.press("ctrl+super+s");
        ASSERT_TRUE(eventually([this] { return !desktop.shows(title::overlay); }));
    }
    /// Waits until everything has been typed that was, and then that.
    void expectTyped(const std::string& text) {
        typed += text;
        EXPECT_EQ(terminal->typed(typed.size()), typed);
    }
    void answerPrompt(const std::string& count) const {
        const ScreenWindow prompt = desktop.awaitWindow(title::prompt);
        ASSERT_TRUE(eventually([&] { return desktop.hasFocus(prompt); }));
        desktop.press(count);
        desktop.press("Return");
    }

    Desktop desktop;
    /// Does not have the focus.
    std::optional<Terminal> bystander;
    std::optional<Terminal> terminal;
    std::optional<Keyrill> keyrill;
    std::optional<StatusMenuClicks> menu;
    std::string typed;
};

TEST_P(MenuTest, whatIsPlayedReachesTheWindowThatWasTypedInto) {
    record("x");
    expectTyped("x");
    menu->open();
    menu->choose(playEntry);
    expectTyped("x");
    menu->open();
    menu->chooseByKeys(playEntry);
    expectTyped("x");
    menu->open();
    menu->choose(multiplePlayEntry);
    answerPrompt("2");
    expectTyped("xx");
    menu->open();
    menu->chooseByKeys(multiplePlayEntry);
    answerPrompt("3");
    expectTyped("xxx");
    desktop.press("period");
    expectTyped(".");
    EXPECT_EQ(bystander->typed(), "");
}

TEST_P(MenuTest, theOldestOfThreeRecordingsIsPlayedAndBecomesTheCurrentOne) {
    for (const char* key : {"a", "b", "c"}) record(key);
    expectTyped("abc");
    desktop.press("ctrl+super+p");
    expectTyped("c");
    menu->open();
    menu->chooseByKeys(historyEntry, {"Right", "Down", "Down", "Return"});
    expectTyped("a");
    desktop.press("ctrl+super+p");
    expectTyped("a");
    desktop.press("ctrl+super+m");
    answerPrompt("2");
    expectTyped("aa");
    menu->open();
    menu->chooseByKeys(historyEntry, {"Right", "Down", "Return"});
    expectTyped("b");
    menu->open();
    menu->choose(playEntry);
    expectTyped("b");
    EXPECT_EQ(bystander->typed(), "");
}

/// The program's own menu, which holds the keyboard while it is open.
class OwnMenuTest : public DesktopTest {
  protected:
    /// The entries that can be chosen while recording.
    static constexpr int pauseEntry = 2;

    OwnMenuTest() { desktop.startTray(TrayKind::docking); }
};

TEST_F(OwnMenuTest, itsKeysAreNotRecorded) {
    const Terminal terminal(desktop.display());
    const Keyrill keyrill(desktop);
    StatusMenuClicks menu(desktop);
    record();
    press("x");
    menu.open();
    menu.chooseByKeys(pauseEntry);
    ASSERT_TRUE(eventually([&] { return !menu.isOpen(); }));
    press("y");
    menu.open();
    for (const char* key : {"Down", "Down", "Up", "Escape"}) press(key);
    ASSERT_TRUE(eventually([&] { return !menu.isOpen(); }));
    press("z");
    stop();
    const std::string script = savedMacro(desktop);
    EXPECT_EQ(keyLines(script), 3U) << script;
    EXPECT_NE(script.find("delay"), std::string::npos) << script;
    EXPECT_EQ(terminal.typed(3), "xyz");
    press("ctrl+super+r");
    desktop.awaitWindow(title::overlay);
}

/// Whoever chooses Record by the keyboard goes on typing at once: what the menu still gets is not typed, and
/// what is typed is recorded.
TEST_F(OwnMenuTest, whatIsTypedAsSoonAsItClosesIsRecorded) {
    const Terminal terminal(desktop.display());
    const Keyrill keyrill(desktop);
    StatusMenuClicks menu(desktop);
    const Hands hands(desktop.display());
    const Typist typist(hands, Typist::Gap(0));
    constexpr int times = 6;
    constexpr int taps = 60;
    std::size_t typed = 0;
    for (int i = 0; i < times; ++i) {
        menu.open();
        press("Down");
        hands.press(xkey::returnKey);
        // As fast as the server takes them one by one, so that some come while the menu closes.
        for (int tap = 0; tap < taps; ++tap) typist.tap(xkey::a);
        hands.release(xkey::returnKey);
        desktop.awaitWindow(title::overlay);
        typist.tap(xkey::period);
        const auto newlyTyped = [&] { return terminal.typed().substr(typed); };
        ASSERT_TRUE(eventually([&] { return newlyTyped().ends_with('.'); }));
        stop();
        EXPECT_EQ(keyLines(savedMacro(desktop)), newlyTyped().size());
        typed += newlyTyped().size();
    }
}

/// A menu has the keyboard and the mouse to itself as a screen locker has: that must not be held against what
/// is typed when it is closed.
TEST_F(OwnMenuTest, whatIsTypedAsSoonAsItClosesInARecordingIsRecorded) {
    const Terminal terminal(desktop.display());
    const Keyrill keyrill(desktop);
    StatusMenuClicks menu(desktop);
    const Hands hands(desktop.display());
    const Typist reader(hands, Typist::Gap(150));
    const Typist typist(hands, Typist::Gap(0));
    constexpr int taps = 60;
    record();
    desktop.awaitWindow(title::overlay);
    menu.open();
    for (const std::uint8_t key : {xkey::arrowDown, xkey::arrowDown, xkey::arrowDown, xkey::arrowDown})
        reader.tap(key);
    hands.press(xkey::escape);
    for (int tap = 0; tap < taps; ++tap) typist.tap(xkey::a);
    hands.release(xkey::escape);
    typist.tap(xkey::period);
    ASSERT_TRUE(eventually([&] { return terminal.typed().ends_with('.'); }));
    stop();
    EXPECT_EQ(keyLines(savedMacro(desktop)), terminal.typed().size());
}

/// The toolkit notices only after a while that none of the program's windows is in use any longer, and closes
/// menus then.
TEST_F(OwnMenuTest, staysOpenRightAfterAWindowOfTheProgramHasClosed) {
    const Terminal terminal(desktop.display());
    const Keyrill keyrill(desktop);
    StatusMenuClicks menu(desktop);
    const Hands hands(desktop.display());
    const Typist typist(hands, Typist::Gap(80));
    record();
    desktop.awaitWindow(title::overlay);
    typist.tap(xkey::a);
    stop();
    ASSERT_TRUE(eventually([this] { return !desktop.shows(title::overlay); }));
    menu.open();
    press("Escape");
    ASSERT_TRUE(eventually([&] { return !menu.isOpen(); }));
    press("ctrl+super+m");
    desktop.awaitFocus(title::prompt);
    hands.tap(xkey::one);
    hands.tap(xkey::returnKey);
    hands.finish();
    ASSERT_EQ(terminal.typed(2), "aa");
    hands.click(1);
    hands.finish();
    ASSERT_TRUE(eventually([&] { return menu.isOpen(); }));
    typist.tap(xkey::arrowDown);
    typist.tap(xkey::returnKey);
    desktop.awaitWindow(title::overlay);
}

std::string nameOfDesktop(const testing::TestParamInfo<std::tuple<TrayKind, WindowManager>>& info) {
    return nameOf(std::get<0>(info.param)) + "Under" + nameOf(std::get<1>(info.param));
}

INSTANTIATE_TEST_SUITE_P(Desktops, MenuTest,
                         testing::Combine(testing::Values(TrayKind::docking, TrayKind::statusNotifier),
                                          testing::Values(WindowManager::openbox, WindowManager::xfwm4)),
                         nameOfDesktop);

}  // namespace

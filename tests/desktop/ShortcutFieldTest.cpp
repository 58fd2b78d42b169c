// SPDX-License-Identifier: MIT
#include "desktop/DesktopTest.h"
#include "display/RepeatCount.h"
#include "support/Keys.h"

namespace {

/// A shortcut field of the preferences, set with real keys; what was set is what stands in the settings file.
/// The preferences come after the welcome of a first start.
class ShortcutFieldTest : public testing::Test {
  protected:
    ShortcutFieldTest() {
        desktop.startWindowManager();
        desktop.startTray();
        desktop.writeSettings("");
        keyrill.emplace(desktop);
        desktop.awaitFocus("Welcome to Keyrill");
        desktop.press("Return");
        panel = desktop.awaitFocus("Keyrill Preferences");
    }

    bool holdsKeyboard() const { return desktop.screen().isKeyboardGrabbed(); }
    /// The first field has the focus when the panel opens.
    void startRecording() {
        EXPECT_FALSE(holdsKeyboard());
        desktop.press("space");
        ASSERT_TRUE(eventually([this] { return holdsKeyboard(); }));
    }
    bool settingsHave(const std::string& line) const {
        return contentOf(desktop.home() + "/.config/keyrill/keyrill.conf").find(line + "\n") !=
               std::string::npos;
    }
    void expectSettings(const std::string& line) const {
        EXPECT_TRUE(eventually([&] { return settingsHave(line); }))
            << line << " is not in\n"
            << contentOf(desktop.home() + "/.config/keyrill/keyrill.conf");
    }
    bool isShown() const { return desktop.shows("Keyrill Preferences"); }

    Desktop desktop;
    std::optional<Keyrill> keyrill;
    ScreenWindow panel;
};

TEST_F(ShortcutFieldTest, takesACombinationThatIsAHotKeyNow) {
    ASSERT_TRUE(desktop.isHotKeyTaken(xkey::p));
    startRecording();
    desktop.press("ctrl+super+p");
    expectSettings("recordCode=35");
    expectSettings("recordFlags=1310720");
    // It was that of Play, which has none now.
    expectSettings("playCode=-1");
    EXPECT_TRUE(eventually([this] { return !holdsKeyboard(); }));
}

TEST_F(ShortcutFieldTest, takesAKeyOfTheWindowManagerAndKeepsItWhileItRepeats) {
    RepeatCount repeats(desktop.display(), xkey::f4);
    startRecording();
    // The window manager closes windows with it. Held down, it would get the repeats.
    desktop.run({"xdotool", "keydown", "Alt_L", "keydown", "F4"});
    expectSettings("recordCode=118");
    expectSettings("recordFlags=524288");
    EXPECT_TRUE(eventually([&] { return repeats.presses() > 3; }));
    EXPECT_TRUE(isShown());
    desktop.run({"xdotool", "keyup", "F4", "keyup", "Alt_L"});
    EXPECT_TRUE(eventually([this] { return !holdsKeyboard(); }));
    EXPECT_TRUE(isShown());
    desktop.press("alt+F4");
    EXPECT_TRUE(eventually([this] { return !isShown(); }));
}

TEST_F(ShortcutFieldTest, givesTheKeyboardBackOnEscapeAndKeepsTheCombination) {
    startRecording();
    desktop.press("Escape");
    EXPECT_TRUE(eventually([this] { return !holdsKeyboard(); }));
    EXPECT_TRUE(isShown());
    desktop.press("Escape");
    EXPECT_TRUE(eventually([this] { return !isShown(); }));
    expectSettings("recordCode=15");
}

TEST_F(ShortcutFieldTest, givesTheKeyboardBackWhenAnotherWindowGetsTheFocus) {
    startRecording();
    const Terminal terminal(desktop.display());
    EXPECT_TRUE(eventually([this] { return !holdsKeyboard(); }));
    desktop.press("x");
    EXPECT_EQ(terminal.typed(1), "x");
}

TEST_F(ShortcutFieldTest, givesTheKeyboardBackAfterFiveSeconds) {
    startRecording();
    EXPECT_TRUE(eventually([this] { return !holdsKeyboard(); }));
    EXPECT_TRUE(desktop.hasFocus(panel));
}

TEST_F(ShortcutFieldTest, clearsWithBackspace) {
    startRecording();
    desktop.press("BackSpace");
    expectSettings("recordCode=-1");
}

TEST_F(ShortcutFieldTest, startsOnAClick) {
    // The first field, right of the middle, under the heading and two lines of text.
    desktop.click(panel.middleX(), panel.y + 80);
    ASSERT_TRUE(eventually([this] { return holdsKeyboard(); }));
    desktop.press("ctrl+shift+y");
    expectSettings("recordCode=16");
    expectSettings("recordFlags=393216");
}

TEST_F(ShortcutFieldTest, recordsWithTheNewCombinationOnceThePanelIsClosed) {
    startRecording();
    desktop.press("ctrl+super+y");
    expectSettings("recordCode=16");
    EXPECT_TRUE(eventually([this] { return !holdsKeyboard(); }));
    desktop.press("Escape");
    EXPECT_TRUE(eventually([this] { return !isShown(); }));
    desktop.press("ctrl+super+y");
    desktop.awaitWindow(title::overlay);
}

}  // namespace

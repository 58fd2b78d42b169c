// SPDX-License-Identifier: MIT
//
// What scripts do beside pressing keys: they bring windows to the front, sound the bell, fill the clipboard.
// And a script file that the tray program plays.
#include "cli/FieldScript.h"
#include "cli/Play.h"
#include "desktop/DesktopTest.h"
#include "display/Bell.h"
#include "support/Editor.h"

namespace {

class ActivateTest : public testing::TestWithParam<std::tuple<WindowManager, const char*>> {
  protected:
    ActivateTest() { desktop.startWindowManager(std::get<WindowManager>(GetParam())); }

    /// Two windows in the same place are one above the other.
    static Terminal::Options at(const std::string& windowClass) {
        return {.xterm = {"-class", windowClass, "-geometry", "60x20+100+100"}};
    }
    bool isAbove(const Terminal& upper, const Terminal& lower) const {
        const auto windows = desktop.screen().windows();
        const auto place = [&](const Terminal& terminal) {
            return std::find_if(windows.begin(), windows.end(), [&](const ScreenWindow& window) {
                return std::to_string(window.number) == terminal.window();
            });
        };
        return place(upper) > place(lower);
    }

    Desktop desktop;
};

TEST_P(ActivateTest, theCoveredWindowComesToTheFrontAndGetsTheKeys) {
    const Terminal covered(desktop.display(), at("Covered"));
    const Terminal front(desktop.display(), at("Front"));
    desktop.run({"xdotool", "windowactivate", "--sync", front.window()});
    ASSERT_TRUE(eventually([&] { return isAbove(front, covered) && front.hasFocus(); }));
    Play play(desktop.display(), std::string(std::get<const char*>(GetParam())) +
                                     "\ntell application \"System Events\" to keystroke \"behind\"\n");
    EXPECT_EQ(play.program().wait(), 0) << play.output();
    EXPECT_EQ(covered.typed(6), "behind");
    EXPECT_EQ(front.typed(), "");
    EXPECT_TRUE(eventually([&] { return isAbove(covered, front); }));
    EXPECT_EQ(std::to_string(desktop.screen().activeWindow()), covered.window());
}

INSTANTIATE_TEST_SUITE_P(Managers, ActivateTest,
                         testing::Combine(testing::Values(WindowManager::openbox, WindowManager::xfwm4),
                                          testing::Values(R"(tell application "Covered" to activate)",
                                                          R"(activate application "covered")",
                                                          R"(if application "Nobody" is not running then
    tell application "System Events"
        set inFront to name of first process whose frontmost is true
        if exists process "Covered" and inFront is "Front" and not frontmost of process "covered" then
            set frontmost of process "Covered" to true
        end if
        if not frontmost of process "Covered" then error "It is not in front."
    end tell
end if)")),
                         [](const auto& condition) {
                             const char first = std::get<const char*>(condition.param)[0];
                             return nameOf(std::get<WindowManager>(condition.param)) + (first == 't' ? "Told"
                                                                                        : first == 'a'
                                                                                            ? "Named"
                                                                                            : "Guarded");
                         });

TEST(BeepTest, anotherProgramHearsEachBell) {
    const Desktop desktop;
    Bell bell(desktop.display());
    Play play(desktop.display(), "beep 3\nbeep\n");
    EXPECT_EQ(play.program().wait(), 0) << play.output();
    EXPECT_EQ(bell.rung(), 4);
}

class PasteTest : public testing::TestWithParam<Editor::Toolkit> {};

// What is saved by a key right behind would be without it: programs ask for the clipboard and go on.
TEST_P(PasteTest, aPasteTypedRightBehindFindsTheClipboard) {
    const Desktop desktop;
    const Editor editor(desktop.display(), GetParam());
    Play play(desktop.display(),
              R"(tell application "System Events"
keystroke "a"
set the clipboard to "Größe 日本 😀" & linefeed
keystroke "v" using control down
delay 0.5
keystroke "z"
keystroke "s" using control down
end tell
)");
    EXPECT_EQ(play.program().wait(), 0) << play.output();
    const std::string expected = "aGröße 日本 😀\nz";
    EXPECT_EQ(editor.saved(expected), expected);
}

INSTANTIATE_TEST_SUITE_P(Toolkits, PasteTest, testing::Values(Editor::Toolkit::gtk, Editor::Toolkit::qt),
                         [](const auto& toolkit) {
                             return toolkit.param == Editor::Toolkit::gtk ? "gtk" : "qt";
                         });

class PlayedFileTest : public DesktopTest, public testing::WithParamInterface<Editor::Toolkit> {};

TEST_P(PlayedFileTest, theHotKeyPlaysItIntoAField) {
    const Keyrill keyrill(desktop, std::string(fieldscript::source));
    const Editor editor(desktop.display(), GetParam());
    play();
    EXPECT_EQ(editor.saved(fieldscript::inField()), fieldscript::inField());
    // The text is saved by Control+S, whose Control comes up a little after the key.
    EXPECT_TRUE(eventually([this] { return desktop.keysDown().empty(); }));
}

INSTANTIATE_TEST_SUITE_P(Toolkits, PlayedFileTest, testing::Values(Editor::Toolkit::gtk, Editor::Toolkit::qt),
                         [](const auto& toolkit) {
                             return toolkit.param == Editor::Toolkit::gtk ? "gtk" : "qt";
                         });

}  // namespace

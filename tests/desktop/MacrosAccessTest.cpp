// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <optional>
#include <set>
#include <sstream>
#include <utility>

#include "desktop/Assistant.h"
#include "desktop/DesktopTest.h"
#include "desktop/SavedMacro.h"

namespace {

constexpr const char* macros = "Macros";
/// As the assistant writes it.
constexpr const char* search = "text|Search macros";

/// The window to somebody who can neither see it nor use a mouse.
class MacrosAccessTest : public DesktopTest {
  protected:
    MacrosAccessTest() {
        letAssistantsIn(desktop);
        std::filesystem::create_directories(folder);
        std::ofstream(file("Greeting")) << recordedAbc;
        keyrill.emplace(desktop);
        desktop.awaitWindow(title::control);
        run({"press", "Macros..."});
        giveFocus(macros);
    }
    std::string file(const std::string& name) const { return folder + "/" + name + ".keyrill"; }
    std::string run(std::vector<std::string> words) {
        return desktop.run(assistantCall(keyrill->child(), std::move(words)));
    }
    /// "push button|Save": what has the focus.
    std::string focused() {
        const std::string line = run({"focused"});
        return line.substr(0, line.find('|', line.find('|') + 1));
    }
    /// Of the window that is shown.
    std::set<std::string> controls() {
        static const std::set<std::string> roles = {
            "push button", "check box", "text", "spin button", "list", "button menu", "page tab list"};
        std::set<std::string> found;
        std::istringstream lines(run({"list"}));
        for (std::string line; std::getline(lines, line);) {
            const std::string role = line.substr(0, line.find('|'));
            if (line.find("|focusable|") == std::string::npos || !roles.contains(role)) continue;
            EXPECT_NE(line.substr(role.size(), 2), "||") << "without a name: " << line;
            found.insert(line.substr(0, line.find('|', role.size() + 1)));
        }
        return found;
    }

    const std::string folder = desktop.home() + "/.local/share/keyrill";
    std::optional<Keyrill> keyrill;
};

TEST_F(MacrosAccessTest, eachControlHasANameAndIsReachedByTab) {
    press("ctrl+f");
    desktop.run({"xdotool", "type", "greet"});
    press("Return");
    ASSERT_TRUE(eventually([this] { return focused() == "list item|Greeting"; })) << focused();
    press("ctrl+f");
    ASSERT_TRUE(eventually([this] { return focused() == search; })) << focused();
    std::set<std::string> reached;
    std::string at = focused();
    for (int step = 0; step < 40 && reached.insert(at).second; ++step) {
        const std::string before = at;
        press("Tab");
        EXPECT_TRUE(eventually([&] { return (at = focused()) != before; })) << "Tab stays in " << before;
    }
    EXPECT_EQ(at, search) << "Tab comes around";
    for (const char* control :
         {search, "list item|Greeting", "push button|Record New", "list item|Type abc", "push button|Hot key",
          "spin button|Times", "check box|Until stopped", "spin button|Speed", "push button|Duplicate",
          "push button|Rename", "push button|Delete", "push button|Play"}) {
        EXPECT_TRUE(reached.contains(control)) << control << " is not among\n"
                                               << testing::PrintToString(reached);
    }
    EXPECT_GE(controls().size(), 10U);
}

/// Who clicks into a window that does not react is not to find out afterwards what it was good for.
TEST_F(MacrosAccessTest, aClickWhileAMacroPlaysIsNotDoneAfterwards) {
    std::ofstream(file("Paused")) << "delay 3\n";
    press("ctrl+f");
    desktop.run({"xdotool", "type", "greet"});
    press("Return");
    ASSERT_TRUE(eventually([this] { return focused() == "list item|Greeting"; })) << focused();
    std::istringstream place(run({"place", "Delete"}));
    std::string x;
    std::string y;
    place >> x >> y;
    const auto click = [this] { desktop.run({"xdotool", "click", "1"}); };
    desktop.run({"xdotool", "mousemove", x, y});
    desktop.run({programs::keyrill, "--play", "Paused"});
    for (int times = 0; times < 3; ++times) click();
    // It answers after the play, and has handled by then what came before the question.
    EXPECT_EQ(run({"list"}).find("The macro is in the trash."), std::string::npos);
    EXPECT_TRUE(std::filesystem::exists(file("Greeting")));
    EXPECT_TRUE(std::filesystem::exists(file("Paused")));
    // The next one is.
    click();
    EXPECT_TRUE(eventually([this] { return !std::filesystem::exists(file("Greeting")); }));
    EXPECT_TRUE(std::filesystem::exists(file("Paused")));
}

/// Her first macro, from the recording to the hot key of its own.
class KeepTest : public MacrosAccessTest {
  protected:
    KeepTest() { terminal.emplace(desktop.display()); }
    void type(const std::string& text) const { desktop.run({"xdotool", "type", "--", text}); }

    const std::string settings = desktop.home() + "/.config/keyrill/macros.conf";
    std::optional<Terminal> terminal;
};

TEST_F(KeepTest, aRecordingIsKeptGetsAHotKeyAndIsPlayedAfterARestart) {
    record();
    type("hello");
    ASSERT_EQ(terminal->typed(5), "hello");
    stop();
    giveFocus(macros);
    press("alt+g");
    press("Down");
    press("Return");
    // Its name is being edited by the time that it is to be seen.
    ASSERT_TRUE(
        eventually([this] { return run({"list"}).find("list item|New Macro|") != std::string::npos; }));
    type("Salute");
    press("Return");
    ASSERT_TRUE(eventually([this] { return std::filesystem::exists(file("Salute")); }));
    press("alt+h");
    press("space");
    ASSERT_TRUE(eventually([this] { return desktop.screen().isKeyboardGrabbed(); }));
    press("ctrl+super+1");
    EXPECT_TRUE(eventually([this] {
        return contentOf(settings).find("[Salute.keyrill]\nhotKeyCode=18") != std::string::npos;
    })) << contentOf(settings);
    close(macros);
    EXPECT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::one); }));
    keyrill.reset();
    EXPECT_TRUE(eventually([this] { return !desktop.isHotKeyTaken(xkey::one); }));
    keyrill.emplace(desktop);
    ASSERT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::one); }));
    desktop.run(
        {"xdotool", "windowactivate", "--sync", desktop.run({"xdotool", "search", "--class", "xterm"})});
    press("ctrl+super+1");
    EXPECT_EQ(terminal->typed(10), "hellohello");
}

/// The terminal has the keyboard while it is recorded, and the window after it.
TEST_F(KeepTest, whoHasRecordedANewMacroNamesIt) {
    giveFocus(macros);
    press("alt+r");
    desktop.awaitWindow(title::overlay);
    for (const char* key : {"x", "y", "z"}) press(key);
    EXPECT_EQ(terminal->typed(3), "xyz");
    stop();
    desktop.awaitFocus(macros);
    ASSERT_TRUE(
        eventually([this] { return run({"list"}).find("list item|New Macro|") != std::string::npos; }));
    type("Mine");
    press("Return");
    EXPECT_TRUE(eventually([this] { return std::filesystem::exists(file("Mine")); }));
    // What goes to the terminal comes there in order.
    desktop.run({"xdotool", "windowactivate", "--sync", terminal->window()});
    type("end");
    EXPECT_EQ(terminal->typed(6), "xyzend");
}

}  // namespace

// SPDX-License-Identifier: MIT
#include <filesystem>
#include <map>
#include <set>

#include "desktop/DesktopTest.h"
#include "desktop/StatusMenuClicks.h"

namespace {

// The entries that can be chosen once something has been recorded.
constexpr int historyEntry = 4;
constexpr int saveEntry = 5;
constexpr int loadEntry = 6;

/// The program with a tray and a terminal, from its first run on.
class FilesTest : public DesktopTest {
  protected:
    FilesTest() {
        std::filesystem::remove_all(desktop.home() + "/.config");
        desktop.startTray();
        terminal.emplace(desktop.display());
        keyrill.emplace(desktop);
        menu.emplace(desktop);
    }

    /// Chooses an entry that asks for a file, and answers with a name.
    void chooseFile(int entry, const char* panel, const std::string& name) {
        menu->open();
        menu->chooseByKeys(entry);
        giveFocus(panel);
        desktop.run({"xdotool", "type", name});
        press("Return");
        ASSERT_TRUE(eventually([&] { return !desktop.shows(panel); }));
    }
    /// Records one of the keys x, y and z; its script.
    std::string recordKey(char key) {
        const std::map<char, std::string> codes = {{'x', "7"}, {'y', "16"}, {'z', "6"}};
        terminal->focus();
        record();
        desktop.awaitWindow(title::overlay);
        press(std::string(1, key));
        stop();
        EXPECT_TRUE(eventually([this] { return !desktop.shows(title::overlay); }));
        return "tell application \"System Events\"\n\tkey code (" + codes.at(key) +
               ") using {}\ndelay 0.01\nend tell\n";
    }
    /// Plays once. A hot key is dropped until the question for the file is over, and that cannot be seen; the
    /// prompt may be called until it comes.
    void playByPrompt() {
        terminal->focus();
        ASSERT_TRUE(eventually([this] {
            press("ctrl+super+m");
            return eventually([this] { return desktop.shows(title::prompt); },
                              std::chrono::milliseconds(500));
        }));
        giveFocus(title::prompt);
        press("Return");
    }
    bool isSaved(const std::string& name, const std::string& script) const {
        return eventually(
            [&] { return contentOf(desktop.home() + "/.local/share/keyrill/" + name) == script; });
    }
    /// All files below a folder, by their paths in it.
    static std::set<std::string> filesIn(const std::string& folder) {
        std::set<std::string> found;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
            if (!entry.is_directory()) found.insert(entry.path().lexically_relative(folder));
        }
        return found;
    }

    std::optional<Terminal> terminal;
    std::optional<Keyrill> keyrill;
    std::optional<StatusMenuClicks> menu;
};

TEST_F(FilesTest, nothingIsWrittenButWhatItIsMeantToWrite) {
    close(title::welcome);
    giveFocus(title::preferences);
    // Start when I log in.
    press("alt+i");
    press("alt+c");
    ASSERT_TRUE(eventually([this] { return !desktop.shows(title::preferences); }));
    const std::string script = recordKey('x');
    chooseFile(saveEntry, title::savePanel, "typed");
    EXPECT_TRUE(isSaved("typed.keyrill", script));
    chooseFile(loadEntry, title::loadPanel, "typed.keyrill");
    playByPrompt();
    terminal->typed(2);
    menu->open();
    menu->chooseLast();
    EXPECT_EQ(keyrill->child().wait(), 0);
    const std::string settings = ".config/keyrill/keyrill.conf";
    const std::string macro = ".local/share/keyrill/typed.keyrill";
    const std::string loginItem = ".config/autostart/example.orlen.Keyrill.desktop";
    EXPECT_EQ(filesIn(desktop.home()), (std::set<std::string>{settings, macro, loginItem}));
    for (const std::string& file : {settings, macro})
        EXPECT_EQ(desktop.run({"stat", "--format=%a", desktop.home() + "/" + file}), "600\n");
    // By it a second start without a bus finds the first.
    EXPECT_EQ(filesIn(desktop.file("runtime")),
              std::set<std::string>{"keyrill/running-" + desktop.display()});
    EXPECT_EQ(desktop.run({"desktop-file-validate", desktop.home() + "/" + loginItem}), "");
}

TEST_F(FilesTest, aSavedMacroIsLoadedAndPlayedAgain) {
    close(title::welcome);
    close(title::preferences);
    const std::string script = recordKey('x');
    chooseFile(saveEntry, title::savePanel, "typed");
    EXPECT_TRUE(isSaved("typed.keyrill", script));
    recordKey('y');
    EXPECT_EQ(terminal->typed(2), "xy");
    chooseFile(loadEntry, title::loadPanel, "typed.keyrill");
    playByPrompt();
    EXPECT_EQ(terminal->typed(3), "xyx");
    chooseFile(saveEntry, title::savePanel, "again");
    EXPECT_TRUE(isSaved("again.keyrill", script));
}

TEST_F(FilesTest, theMacroChosenFromTheHistoryIsTheOneThatIsSaved) {
    close(title::welcome);
    close(title::preferences);
    const std::string oldest = recordKey('x');
    for (const char key : {'y', 'z'}) recordKey(key);
    menu->open();
    menu->chooseByKeys(historyEntry, {"Right", "Down", "Down", "Return"});
    EXPECT_EQ(terminal->typed(4), "xyzx");
    chooseFile(saveEntry, title::savePanel, "oldest");
    EXPECT_TRUE(isSaved("oldest.keyrill", oldest));
}

}  // namespace

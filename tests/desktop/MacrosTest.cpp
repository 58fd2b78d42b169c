// SPDX-License-Identifier: MIT
#include <signal.h>

#include <filesystem>
#include <fstream>

#include "desktop/DesktopTest.h"
#include "desktop/SavedMacro.h"
#include "desktop/StatusMenuClicks.h"
#include "support/Programs.h"

namespace {

constexpr const char* macros = "Macros";
/// Of the entries that can be chosen before anything was recorded.
constexpr int macrosEntry = 3;

/// Somebody with a terminal, a tray and one macro, "Greeting", who has never seen the window of the macros.
class MacrosTest : public DesktopTest {
  protected:
    MacrosTest() {
        desktop.startTray();
        std::filesystem::create_directories(folder);
        std::ofstream(file("Greeting")) << recordedAbc;
        terminal.emplace(desktop.display());
        keyrill.emplace(desktop);
    }
    std::string file(const std::string& name) const { return folder + "/" + name + ".keyrill"; }
    bool holds(const std::string& name, const std::string& text) const {
        return eventually([&] { return contentOf(file(name)) == text; });
    }
    /// By the menu, and the first macro of the list by the search field.
    void openGreeting() const {
        StatusMenuClicks menu(desktop);
        menu.open();
        menu.chooseByKeys(macrosEntry);
        giveFocus(macros);
        press("ctrl+f");
        type("greet");
        press("Return");
    }
    void type(const std::string& text) const { desktop.run({"xdotool", "type", "--", text}); }
    /// What is not saved of a macro, with that beginning, is on the disk.
    bool isDrafted(const std::string& path, const std::string& text) const {
        const std::string drafts = desktop.home() + "/.local/state/keyrill/unsaved";
        return eventually([&] {
            std::error_code error;
            for (const auto& entry : std::filesystem::directory_iterator(drafts, error)) {
                const std::string draft = contentOf(entry.path());
                if (entry.path().extension() == ".draft" && draft.starts_with(path + "\n") &&
                    draft.find(text) != std::string::npos)
                    return true;
            }
            return false;
        });
    }
    /// Into the window that was used before, which is the terminal.
    void play() const { press("alt+p"); }

    const std::string folder = desktop.home() + "/.local/share/keyrill";
    std::optional<Terminal> terminal;
    std::optional<Keyrill> keyrill;
};

TEST_F(MacrosTest, aLineIsChangedUnderScriptSavedAndPlayed) {
    openGreeting();
    press("alt+c");
    press("ctrl+Home");
    for (int line = 0; line < 3; ++line) press("Down");
    press("Home");
    press("shift+End");
    type("\tkeystroke \"XY\"");
    press("ctrl+s");
    std::string changed = recordedAbc;
    const std::string line = "\tkey code (11) using {}";
    changed.replace(changed.find(line), line.size(), "\tkeystroke \"XY\"");
    EXPECT_TRUE(holds("Greeting", changed)) << contentOf(file("Greeting"));
    play();
    EXPECT_EQ(terminal->typed(4), "aXYc");
}

TEST_F(MacrosTest, aKeyIsChangedUnderKeysAndPlayed) {
    openGreeting();
    press("alt+k");
    press("Home");
    press("F2");
    press("ctrl+a");
    type("axc");
    press("Return");
    press("ctrl+s");
    std::string changed = recordedAbc;
    changed.replace(changed.find("(11)"), 4, "(7)");
    EXPECT_TRUE(holds("Greeting", changed)) << contentOf(file("Greeting"));
    play();
    EXPECT_EQ(terminal->typed(3), "axc");
}

TEST_F(MacrosTest, escapeEndsTheCountAndNothingIsPlayed) {
    std::ofstream(file("Other")) << "tell application \"System Events\" to keystroke \"o\"\n";
    openGreeting();
    play();
    ASSERT_TRUE(eventually([this] {
        return desktop.shows("Plays in 3 s...") || desktop.shows("Plays in 2 s...") ||
               desktop.shows("Plays in 1 s...");
    }));
    press("Escape");
    ASSERT_TRUE(eventually([this] { return desktop.shows(macros); }));
    // While it counts no other could be chosen.
    press("ctrl+f");
    type("other");
    press("Return");
    play();
    EXPECT_EQ(terminal->typed(1), "o");
}

TEST_F(MacrosTest, theFileIsRenamedByTheUserAndByOthers) {
    desktop.startBus();
    keyrill.emplace(desktop);
    const auto isListed = [this](const std::string& name) {
        return eventually([&] { return desktop.run({programs::keyrill, "--list"}) == name + "\n"; });
    };
    openGreeting();
    press("F2");
    press("ctrl+a");
    type("Hello");
    press("Return");
    EXPECT_TRUE(holds("Hello", recordedAbc));
    EXPECT_FALSE(std::filesystem::exists(file("Greeting")));
    ASSERT_TRUE(isListed("Hello"));
    desktop.run({"mv", file("Hello"), file("Greeting")});
    ASSERT_TRUE(isListed("Greeting"));
    press("ctrl+f");
    type("greet");
    press("Return");
    press("Delete");
    EXPECT_TRUE(eventually([this] { return !std::filesystem::exists(file("Greeting")); }));
    EXPECT_TRUE(std::filesystem::exists(desktop.home() + "/.local/share/Trash/files/Greeting.keyrill"));
}

TEST_F(MacrosTest, whatIsBeingEditedStaysWithAMacroThatOthersRename) {
    openGreeting();
    press("alt+c");
    press("ctrl+Home");
    type("-- mine");
    press("Return");
    desktop.run({"mv", file("Greeting"), file("Hello")});
    ASSERT_TRUE(isDrafted("Hello.keyrill", "\n-- mine\ntell"));
    press("ctrl+s");
    EXPECT_TRUE(eventually([this] {
        return contentOf(file("Hello")) == std::string("-- mine\n") + recordedAbc;
    })) << contentOf(file("Hello"));
    EXPECT_FALSE(std::filesystem::exists(file("Greeting")));
}

TEST_F(MacrosTest, whatIsNotSavedOutlivesAKill) {
    openGreeting();
    press("alt+c");
    press("ctrl+Home");
    type("-- mine");
    press("Return");
    ASSERT_TRUE(isDrafted("Greeting.keyrill", "\n-- mine\ntell"));
    keyrill->child().signal(SIGKILL);
    keyrill->child().wait();
    EXPECT_EQ(contentOf(file("Greeting")), recordedAbc);
    keyrill.emplace(desktop);
    openGreeting();
    press("ctrl+s");
    EXPECT_TRUE(holds("Greeting", std::string("-- mine\n") + recordedAbc)) << contentOf(file("Greeting"));
}

TEST_F(MacrosTest, whatWasDeletedComesBackByCtrlZ) {
    openGreeting();
    press("Delete");
    ASSERT_TRUE(eventually([this] { return !std::filesystem::exists(file("Greeting")); }));
    press("ctrl+z");
    EXPECT_TRUE(holds("Greeting", recordedAbc));
}

TEST_F(MacrosTest, allThatWasDeletedComesBackOneAfterTheOther) {
    std::ofstream(file("Other")) << recordedAbc;
    openGreeting();
    press("Delete");
    ASSERT_TRUE(eventually([this] { return !std::filesystem::exists(file("Greeting")); }));
    press("ctrl+f");
    type("other");
    press("Return");
    press("Delete");
    ASSERT_TRUE(eventually([this] { return !std::filesystem::exists(file("Other")); }));
    press("ctrl+z");
    EXPECT_TRUE(holds("Other", recordedAbc));
    press("ctrl+z");
    EXPECT_TRUE(holds("Greeting", recordedAbc));
}

TEST_F(MacrosTest, aMacroWithCommentsIsChangedUnderKeys) {
    const std::string head = "-- Greets.\n";
    const std::string where = "\tkey code (11)";
    std::string explained = head + recordedAbc;
    explained.insert(explained.find(where), "\t-- the b\n");
    std::ofstream(file("Greeting")) << explained;
    openGreeting();
    press("alt+k");
    press("Home");
    press("Down");
    press("F2");
    press("ctrl+a");
    type("xyc");
    press("Return");
    press("ctrl+s");
    std::string changed = explained;
    changed.replace(changed.find("(11)"), 4, "(7)");
    changed.insert(changed.find("\tkey code (8)"), "\tkey code (16) using {}\ndelay 0.01\n");
    EXPECT_TRUE(holds("Greeting", changed)) << contentOf(file("Greeting"));
    play();
    EXPECT_EQ(terminal->typed(4), "axyc");
}

TEST_F(MacrosTest, theTrashIsTheUsers) {
    openGreeting();
    press("Delete");
    ASSERT_TRUE(eventually([this] { return !std::filesystem::exists(file("Greeting")); }));
    // Where the tests run nothing is left.
    EXPECT_FALSE(std::filesystem::exists("files"));
    EXPECT_FALSE(std::filesystem::exists("info"));
}

}  // namespace

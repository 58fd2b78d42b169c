// SPDX-License-Identifier: MIT
//
// The history over restarts, and what is left of it under the home folder.
#include <signal.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <vector>

#include "desktop/Assistant.h"
#include "desktop/DesktopTest.h"
#include "desktop/StatusMenuClicks.h"
#include "display/Typist.h"

namespace {

namespace fs = std::filesystem;

class HistoryTest : public DesktopTest {
  protected:
    HistoryTest() {
        desktop.startTray();
        terminal.emplace(desktop.display());
    }

    /// With what the settings say besides that this is not the first run.
    void start(const std::string& settings = "keepHistory=true\n") {
        desktop.writeSettings("notFirstRun=true\n" + settings);
        keyrill.emplace(desktop);
        menu.emplace(desktop);
    }
    void restart() {
        keyrill->child().signal(SIGKILL);
        keyrill->child().wait();
        // The X server has done with the program that was.
        ASSERT_TRUE(eventually([this] { return !desktop.isHotKeyTaken(xkey::r); }));
        keyrill.reset();
        keyrill.emplace(desktop);
        menu.emplace(desktop);
    }
    void record(std::initializer_list<std::uint8_t> keys) {
        const Typist typist(hands, Typist::Gap(30));
        typist.stroke({xkey::control, xkey::super, xkey::r});
        desktop.awaitWindow(title::overlay);
        for (const std::uint8_t key : keys) typist.tap(key);
        typist.stroke({xkey::control, xkey::super, xkey::s});
        ASSERT_TRUE(eventually([this] { return !desktop.shows(title::overlay); }));
    }
    /// Waits until everything has been typed that was, and then that.
    void expectTyped(const std::string& text) {
        typed += text;
        EXPECT_EQ(terminal->typed(typed.size()), typed);
    }
    /// The recordings' files.
    std::vector<fs::path> stored() const {
        std::vector<fs::path> files;
        std::error_code error;
        for (const auto& entry : fs::directory_iterator(folder, error)) {
            // Others are being written.
            if (entry.path().extension() == ".keyrill") files.push_back(entry.path());
        }
        std::sort(files.begin(), files.end());
        return files;
    }
    bool isStored(std::size_t count) const {
        return eventually([&] { return stored().size() == count; });
    }
    /// Files under the home folder with a key code of a recording in them, whatever they are called.
    std::string traces() const {
        return desktop.run({"sh", "-c", "grep -rlaE 'key code' \"$0\" || true", desktop.home()});
    }
    void openMacros() {
        menu->open();
        // Above Quit, Help and Preferences.
        menu->chooseByKeys(0, {"Up", "Up", "Up", "Up", "Return"});
        giveFocus("Macros");
        press("alt+g");
    }

    const std::string folder = desktop.home() + "/.local/state/keyrill/history";
    const Hands hands{desktop.display()};
    std::optional<Terminal> terminal;
    std::optional<Keyrill> keyrill;
    std::optional<StatusMenuClicks> menu;
    std::string typed;
};

/// Of the menu as it is before anything has been recorded: the first is Start Recording.
constexpr int historyEntry = 2;

TEST_F(HistoryTest, itIsThereAgainAfterAKill) {
    start();
    record({xkey::a, xkey::b});
    record({xkey::q});
    expectTyped("abq");
    ASSERT_TRUE(isStored(2));
    restart();
    menu->open();
    menu->chooseByKeys(historyEntry, {"Right", "Down", "Return"});
    expectTyped("ab");
    // It is the current one.
    press("ctrl+super+p");
    expectTyped("ab");
    restart();
    menu->open();
    menu->chooseByKeys(historyEntry, {"Right", "Return"});
    expectTyped("q");
}

TEST_F(HistoryTest, itIsForTheUserAlone) {
    start();
    record({xkey::a});
    ASSERT_TRUE(isStored(1));
    struct stat status {};
    ASSERT_EQ(stat(stored().front().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0600U);
    ASSERT_EQ(stat(folder.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0700U);
}

TEST_F(HistoryTest, nothingIsKeptUnlessTheUserWantsIt) {
    start("");
    record({xkey::a, xkey::b});
    expectTyped("ab");
    // It has been recorded.
    press("ctrl+super+p");
    expectTyped("ab");
    keyrill->child().signal(SIGTERM);
    keyrill->child().wait();
    EXPECT_EQ(traces(), "");
}

TEST_F(HistoryTest, nothingIsLeftOfOneThatIsForgottenAndTheOtherStays) {
    start();
    record({xkey::a, xkey::b});
    record({xkey::q});
    expectTyped("abq");
    ASSERT_TRUE(isStored(2));
    const std::string second = contentOf(stored().back());
    openMacros();
    // Below the two: Forget, and in it the earlier one.
    for (const char* const key : {"Down", "Down", "Down", "Right", "Down", "Return"}) press(key);
    ASSERT_TRUE(isStored(1));
    EXPECT_EQ(contentOf(stored().front()), second);
    close("Macros");
    restart();
    menu->open();
    menu->chooseByKeys(historyEntry, {"Right", "Down", "Return"});
    // There is no second one: the choice comes around to the first.
    expectTyped("q");
    EXPECT_EQ(traces(), stored().front().string() + "\n");
}

TEST_F(HistoryTest, nothingIsLeftWhenAllAreForgotten) {
    start();
    for (const std::uint8_t key : {xkey::a, xkey::b, xkey::q}) record({key});
    expectTyped("abq");
    ASSERT_TRUE(isStored(3));
    EXPECT_NE(traces(), "");
    openMacros();
    for (const char* const key : {"Up", "Right", "Up", "Return"}) press(key);
    ASSERT_TRUE(isStored(0));
    EXPECT_EQ(traces(), "");
    keyrill->child().signal(SIGTERM);
    keyrill->child().wait();
    EXPECT_EQ(traces(), "");
}

/// The preference, by the keyboard.
class KeepHistoryTest : public HistoryTest {
  protected:
    KeepHistoryTest() { letAssistantsIn(desktop); }
    /// Until it is.
    void toggle(const std::string& state) {
        menu->open();
        // Above Quit and Help.
        menu->chooseByKeys(0, {"Up", "Up", "Up", "Return"});
        giveFocus(title::preferences);
        press("alt+h");
        desktop.run(assistantCall(keyrill->child(), {"await", "Keep the history for the next start", state}));
        close(title::preferences);
    }
};

TEST_F(KeepHistoryTest, nothingStaysStoredWhenTheUserWantsItNoLonger) {
    start();
    record({xkey::a});
    ASSERT_TRUE(isStored(1));
    toggle("unchecked");
    EXPECT_TRUE(isStored(0));
    EXPECT_EQ(traces(), "");
    // And again as soon as he does.
    toggle("checked");
    EXPECT_TRUE(isStored(1));
}

TEST_F(HistoryTest, ofMoreThanFiftyTheEarliestGo) {
    start();
    record({xkey::z});
    for (int i = 0; i < 50; ++i) record({xkey::a});
    ASSERT_TRUE(isStored(50));
    for (const fs::path& file : stored()) EXPECT_TRUE(contentOf(file).starts_with("-- a\n"));
}

}  // namespace

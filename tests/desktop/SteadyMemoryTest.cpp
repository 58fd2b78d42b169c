// SPDX-License-Identifier: MIT
//
// What is done again and again takes no more memory than when it was done for the first times.
#include "desktop/DesktopTest.h"
#include "desktop/StatusMenuClicks.h"

namespace {

constexpr std::size_t mebibyte = std::size_t{1024} * 1024;

// The entries that can be chosen once something has been recorded.
constexpr int saveEntry = 5;
constexpr int loadEntry = 6;

class SteadyMemoryTest : public DesktopTest {
  protected:
    SteadyMemoryTest() {
        desktop.startTray();
        menu.emplace(desktop);
        EXPECT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
    }

    /// What the program has for itself, in bytes: nothing that it shares with others or has in files.
    std::size_t memory() const {
        const std::string status = contentOf("/proc/" + std::to_string(keyrill.pid()) + "/status");
        const std::string name = "RssAnon:";
        return std::stoul(status.substr(status.find(name) + name.size())) * 1024;
    }
    void awaitGone(const char* title) const {
        ASSERT_TRUE(eventually([&] { return !desktop.shows(title); })) << title;
    }
    void openAndEscape(const char* title) const {
        giveFocus(title);
        press("Escape");
        awaitGone(title);
    }
    void recordAndPlay() {
        terminal.focus();
        record();
        desktop.awaitWindow(title::overlay);
        press("x");
        stop();
        awaitGone(title::overlay);
        play();
        typed += 2;
        terminal.typed(typed);
    }
    void askForFile(int entry, const char* title) {
        menu->open();
        menu->chooseByKeys(entry);
        openAndEscape(title);
    }
    void openPanel(const std::vector<std::string>& keys, const char* title) {
        menu->open();
        menu->chooseByKeys(0, keys);
        openAndEscape(title);
    }
    /// Each thing that users do, once.
    void cycle() {
        recordAndPlay();
        press("ctrl+super+m");
        openAndEscape(title::prompt);
        askForFile(saveEntry, title::savePanel);
        askForFile(loadEntry, title::loadPanel);
        openPanel({"Up", "Up", "Up", "Return"}, title::preferences);
        openPanel({"Up", "Up", "Right", "Up", "Return"}, title::about);
    }

    Terminal terminal{desktop.display()};
    Child keyrill{{KEYRILL_PRODUCT}, desktop.options("product.log")};
    std::optional<StatusMenuClicks> menu;
    std::size_t typed = 0;
};

TEST_F(SteadyMemoryTest, isAsGreatAfterThreeHundredCyclesOfEverything) {
    constexpr int warmUp = 20;
    constexpr int cycles = 300;
    for (int number = 0; number < warmUp; ++number) ASSERT_NO_FATAL_FAILURE(cycle());
    const std::size_t before = memory();
    for (int number = 0; number < cycles; ++number) ASSERT_NO_FATAL_FAILURE(cycle());
    EXPECT_LT(memory(), before + 2 * mebibyte) << before << " bytes before";
}

}  // namespace

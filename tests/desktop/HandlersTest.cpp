// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <regex>

#include "desktop/DesktopTest.h"
#include "desktop/StatusMenuClicks.h"

namespace {

/// The user's own programs for pages and mails: one stand-in that writes down what it is called with.
class HandlersTest : public DesktopTest {
  protected:
    HandlersTest() {
        const std::filesystem::path applications = desktop.home() + "/.local/share/applications";
        std::filesystem::create_directories(applications);
        std::ofstream(desktop.file("handler"))
            << "#!/bin/sh\nfor argument; do printf '%s\\n' \"$argument\" >> '" << desktop.file("opened")
            << "'; done\n";
        std::filesystem::permissions(desktop.file("handler"), std::filesystem::perms::owner_all);
        std::ofstream(applications / "handler.desktop")
            << "[Desktop Entry]\nType=Application\nName=Handler\nExec=" << desktop.file("handler")
            << " %u\nMimeType=x-scheme-handler/mailto;x-scheme-handler/https;\n";
        std::ofstream(desktop.home() + "/.config/mimeapps.list")
            << "[Default Applications]\nx-scheme-handler/mailto=handler.desktop\n"
               "x-scheme-handler/https=handler.desktop\n";
        desktop.startTray();
        keyrill.emplace(desktop);
        menu.emplace(desktop);
    }

    /// Chooses the n-th entry of the help menu and waits for what the handler gets: the last line.
    std::string openedBy(int entry) {
        const std::string before = opened();
        menu->open();
        std::vector<std::string> keys = {"Up", "Up", "Right"};
        for (int i = 1; i < entry; ++i) keys.emplace_back("Down");
        keys.emplace_back("Return");
        menu->chooseByKeys(0, keys);
        EXPECT_TRUE(eventually([&] { return opened().size() > before.size() && opened().ends_with('\n'); }))
            << "entry " << entry;
        return opened().substr(before.size());
    }
    std::string opened() const { return contentOf(desktop.file("opened")); }

    std::optional<Keyrill> keyrill;
    std::optional<StatusMenuClicks> menu;
};

TEST_F(HandlersTest, pagesAndMailsArriveByteForByte) {
    EXPECT_EQ(openedBy(2), "https://www.orlen.example/forum/\n");
    EXPECT_EQ(openedBy(3), "https://www.orlen.example/keyrill/\n");
    EXPECT_EQ(openedBy(4), "https://www.orlen.example/\n");
    EXPECT_EQ(openedBy(5), "mailto:support@orlen.example?subject=Support&body=\n");
    EXPECT_EQ(openedBy(6), "mailto:feedback@orlen.example?subject=Keyrill%20Feedback&body=\n");
    const std::string report = openedBy(7);
    std::smatch parts;
    ASSERT_TRUE(std::regex_match(
        report, parts,
        std::regex("mailto:bugs@orlen\\.example\\?subject=Keyrill%20Bug&body=Version:%091\\.0%0ASystem:%09"
                   "([^\\n]+)%0AMac:%09([^\\n]+)%0ACPU:%09([0-9]+)x([0-9]+)MHz%0ARAM:%09([0-9]+)MB%0A%0A"
                   "Details:%0A\\n")))
        << report;
    EXPECT_EQ(parts[3].str() + "\n", desktop.run({"getconf", "_NPROCESSORS_ONLN"}));
}

}  // namespace

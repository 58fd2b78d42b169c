// SPDX-License-Identifier: MIT
#include "platform/linux/AutostartEntry.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "support/Child.h"

namespace fs = std::filesystem;

namespace {

using State = LoginItems::State;

class AutostartEntryTest : public testing::Test {
  protected:
    void put(const std::string& domain, const std::string& content) const {
        fs::create_directories(folder.file(domain + "/autostart"));
        std::ofstream(fileOf(domain)) << content;
    }
    std::string fileOf(const std::string& domain) const {
        return folder.file(domain + "/autostart/example.orlen.Keyrill.desktop");
    }
    std::string content() const { return contentOf(fileOf("user")); }
    ino_t identity() const {
        struct stat status {};
        return stat(fileOf("user").c_str(), &status) == 0 ? status.st_ino : 0;
    }
    static std::string entryFor(const std::string& exec, const std::string& more = "") {
        return "[Desktop Entry]\nType=Application\nName=Keyrill\nExec=" + exec + "\n" + more;
    }

    TemporaryFolder folder;
    const std::string program = "/opt/keyrill/bin/keyrill";
    AutostartEntry entry{{folder.file("user"), {folder.file("first"), folder.file("second")}}, program};
};

TEST_F(AutostartEntryTest, isOffAtFirst) {
    EXPECT_EQ(entry.state(), State::off);
    EXPECT_FALSE(fs::exists(folder.file("user")));
}

TEST_F(AutostartEntryTest, isRefusedInASandboxWhereNoDesktopLooksForIt) {
    AutostartEntry inside{{folder.file("user"), {}}, program, folder.path()};
    const auto refused = inside.install(true);
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error(), (Error{"A program in a sandbox cannot make an entry that starts it at log-in.",
                                      "Add Keyrill to the programs that start at log-in, in your desktop's "
                                      "settings."}));
    EXPECT_FALSE(inside.reveal());
    EXPECT_TRUE(inside.install(false));
    EXPECT_FALSE(fs::exists(folder.file("user")));
}

TEST_F(AutostartEntryTest, isWrittenAsDocumented) {
    EXPECT_TRUE(entry.install(true));
    EXPECT_EQ(entry.state(), State::on);
    EXPECT_EQ(content(),
              R"([Desktop Entry]
Type=Application
Name=Keyrill
Comment=Record keystrokes and play them again
Exec=/opt/keyrill/bin/keyrill
Icon=example.orlen.Keyrill
Terminal=false
Hidden=false
X-GNOME-Autostart-Delay=2
X-KDE-autostart-after=panel
X-LXQt-Need-Tray=true
)");
}

TEST_F(AutostartEntryTest, passesTheStandardsCheck) {
    EXPECT_TRUE(entry.install(true));
    EXPECT_EQ(outputOf({"desktop-file-validate", "--warn-kde", fileOf("user")}), "");
}

TEST_F(AutostartEntryTest, isNotWrittenTwice) {
    EXPECT_TRUE(entry.install(true));
    const ino_t before = identity();
    EXPECT_TRUE(entry.install(true));
    EXPECT_EQ(identity(), before);
}

TEST_F(AutostartEntryTest, isLeftAsTheUserEditedIt) {
    const std::string edited = entryFor(R"("/opt/keyrill/bin/keyrill" --x)", "X-GNOME-Autostart-Delay=30\n");
    put("user", edited);
    EXPECT_EQ(entry.state(), State::on);
    EXPECT_TRUE(entry.install(true));
    EXPECT_EQ(content(), edited);
}

TEST_F(AutostartEntryTest, isTakenAwayAgain) {
    EXPECT_TRUE(entry.install(true));
    EXPECT_TRUE(entry.install(false));
    EXPECT_EQ(entry.state(), State::off);
    EXPECT_TRUE(fs::is_empty(folder.file("user/autostart")));
    EXPECT_TRUE(entry.install(false));
    EXPECT_EQ(entry.state(), State::off);
}

TEST_F(AutostartEntryTest, replacesAnotherPath) {
    put("user", entryFor("/home/ann/old/keyrill"));
    EXPECT_EQ(entry.state(), State::off);
    EXPECT_TRUE(entry.install(true));
    EXPECT_EQ(entry.state(), State::on);
    EXPECT_NE(content().find("\nExec=/opt/keyrill/bin/keyrill\n"), std::string::npos);
}

TEST_F(AutostartEntryTest, leavesAnotherPathWhenItIsSwitchedOff) {
    const std::string others = entryFor("/home/ann/old/keyrill");
    put("user", others);
    EXPECT_TRUE(entry.install(false));
    EXPECT_EQ(content(), others);
}

TEST_F(AutostartEntryTest, leavesWhatTheUserHasHidden) {
    for (const std::string& hidden :
         {entryFor(program, "Hidden=true\n"), entryFor("/old/keyrill", "Hidden=true\n"),
          entryFor(program, "Hidden=false\nX-GNOME-Autostart-enabled=false\n")}) {
        put("user", hidden);
        for (const bool enable : {true, false}) {
            EXPECT_EQ(entry.state(), State::hiddenByUser);
            EXPECT_TRUE(entry.install(enable));
            EXPECT_EQ(content(), hidden);
        }
    }
}

TEST_F(AutostartEntryTest, replacesAFileThatIsNoEntry) {
    for (const std::string content :
         {"", "nonsense", "[Desktop Entry]\nExec=\n", "[Desktop Entry]\nExec=\"x\n"}) {
        put("user", content);
        EXPECT_EQ(entry.state(), State::off) << content;
        EXPECT_TRUE(entry.install(true));
        EXPECT_EQ(entry.state(), State::on) << content;
    }
}

TEST_F(AutostartEntryTest, masksASystemWideEntry) {
    const std::string systemWide = entryFor(program);
    put("second", systemWide);
    EXPECT_EQ(entry.state(), State::on);
    EXPECT_TRUE(entry.install(true));
    EXPECT_FALSE(fs::exists(fileOf("user")));
    EXPECT_TRUE(entry.install(false));
    EXPECT_EQ(entry.state(), State::off);
    EXPECT_NE(content().find("\nHidden=true\n"), std::string::npos);
    EXPECT_EQ(contentOf(fileOf("second")), systemWide);
    const ino_t before = identity();
    EXPECT_TRUE(entry.install(false));
    EXPECT_EQ(identity(), before);
}

TEST_F(AutostartEntryTest, takesItsOwnMaskAway) {
    put("first", entryFor(program));
    EXPECT_TRUE(entry.install(false));
    EXPECT_TRUE(entry.install(true));
    EXPECT_EQ(entry.state(), State::on);
    EXPECT_TRUE(entry.install(false));
    EXPECT_EQ(entry.state(), State::off);
}

TEST_F(AutostartEntryTest, readsTheFirstOfTheSystemsEntries) {
    put("first", entryFor("/usr/bin/keyrill"));
    put("second", entryFor(program));
    EXPECT_EQ(entry.state(), State::off);
}

TEST_F(AutostartEntryTest, cannotBeForAPathWithAPercentSign) {
    AutostartEntry strange({folder.file("user"), {}}, "/opt/100%/keyrill");
    EXPECT_EQ(strange.install(true).error(),
              (Error{"A program whose path has a percent sign cannot be started at login: /opt/100%/keyrill",
                     "Move the program to a folder without one."}));
    EXPECT_FALSE(fs::exists(folder.file("user")));
    EXPECT_TRUE(strange.install(false));
}

TEST_F(AutostartEntryTest, cannotBeForAPathThatIsNoText) {
    AutostartEntry strange({folder.file("user"), {}}, "/opt/\xFF/keyrill");
    EXPECT_FALSE(strange.install(true));
    EXPECT_FALSE(fs::exists(folder.file("user")));
}

TEST_F(AutostartEntryTest, changesNothingWhereTheFolderCannotBeMade) {
    std::ofstream(folder.file("user")) << "a file";
    EXPECT_EQ(entry.install(true).error().message,
              "The folder " + folder.file("user/autostart") + " cannot be made: Not a directory");
    EXPECT_EQ(contentOf(folder.file("user")), "a file");
    EXPECT_EQ(entry.state(), State::off);
}

}  // namespace

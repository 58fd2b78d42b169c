// SPDX-License-Identifier: MIT
//
// The window of the macros over a macro folder on a disk that is full, or read-only.
#include <filesystem>
#include <fstream>
#include <optional>
#include <vector>

#include "desktop/Assistant.h"
#include "desktop/DesktopTest.h"
#include "linux/disk/PrivateMounts.h"
#include "support/Programs.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* macros = "Macros";

class DiskMacrosTest : public DesktopTest {
  protected:
    DiskMacrosTest() {
        letAssistantsIn(desktop);
        const std::string data = desktop.home() + "/.local/share";
        fs::create_directories(data);
        fs::create_directory_symlink(disk.path(), data + "/keyrill");
        std::ofstream(file("Greeting")) << script;
        terminal.emplace(desktop.display());
        keyrill.emplace(desktop);
        desktop.run({programs::keyrill, "--show", "Greeting"});
        giveFocus(macros);
        // It has been read.
        EXPECT_TRUE(shows("list item|Text: a"));
    }
    std::string file(const std::string& name) const { return disk.file(name + ".keyrill"); }
    /// What assistive technology answers.
    std::string assistant(const std::string& command) {
        return desktop.run(assistantCall(keyrill->child(), {command}));
    }
    /// Whether it finds that in the window.
    bool shows(const std::string& text) {
        return eventually([&] { return assistant("list").find(text) != std::string::npos; });
    }
    /// Another first line, which is not saved.
    void edit() {
        press("alt+c");
        press("ctrl+Home");
        desktop.run({"xdotool", "type", "--", "-- new"});
        press("Return");
    }

    const std::string script = "tell application \"System Events\"\n\tkeystroke \"a\"\nend tell\n";
    SmallDisk disk;
    std::optional<Terminal> terminal;
    std::optional<Keyrill> keyrill;
};

TEST_F(DiskMacrosTest, whatDoesNotFitIsToldAndSavedOnceThereIsRoom) {
    disk.fillUntil(0);
    edit();
    press("ctrl+s");
    EXPECT_TRUE(shows("cannot be written: No space left on device"));
    EXPECT_EQ(contentOf(file("Greeting")), script);
    EXPECT_EQ(disk.names(), (std::vector<std::string>{"Greeting.keyrill", "filler"}));
    fs::remove(disk.file("filler"));
    press("ctrl+s");
    EXPECT_TRUE(eventually([&] { return contentOf(file("Greeting")) == "-- new\n" + script; }))
        << contentOf(file("Greeting"));
}

TEST_F(DiskMacrosTest, whatCannotBeChangedIsToldAndStays) {
    disk.makeReadOnly();
    edit();
    press("ctrl+s");
    EXPECT_TRUE(shows("cannot be written: Read-only file system"));
    press("ctrl+f");
    desktop.run({"xdotool", "type", "greet"});
    press("Return");
    ASSERT_TRUE(eventually([this] { return assistant("focused").starts_with("list item|Greeting"); }));
    press("F2");
    desktop.run({"xdotool", "type", "Other"});
    press("Return");
    EXPECT_TRUE(shows("cannot be renamed: Read-only file system"));
    EXPECT_EQ(disk.names(), std::vector<std::string>{"Greeting.keyrill"});
    EXPECT_EQ(contentOf(file("Greeting")), script);
    // It can be played all the same.
    press("alt+p");
    EXPECT_EQ(terminal->typed(1), "a");
}

}  // namespace

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    enterPrivateMounts();
    return RUN_ALL_TESTS();
}

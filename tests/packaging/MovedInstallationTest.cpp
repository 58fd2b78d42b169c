// SPDX-License-Identifier: MIT
//
// An installation where nobody said when configuring that it would be: all of it is found by the program's
// own place.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

#include "desktop/Desktop.h"
#include "packaging/StagedTest.h"
#include "support/Child.h"
#include "support/Keys.h"
#include "support/Terminal.h"

namespace {

namespace fs = std::filesystem;

/// On a desktop whose system has no presets of ours. Nothing is played without the program that releases
/// keys.
class MovedInstallationTest : public StagedTest {
  protected:
    static void SetUpTestSuite() { installInto(folderName); }
    MovedInstallationTest() {
        desktop.setEnvironment("XDG_CONFIG_DIRS", desktop.file("empty"));
        desktop.startWindowManager();
    }

    static constexpr const char* folderName = "some where";
    static std::string prefix() { return stage().file(folderName); }

    static std::set<std::string> filesBelow(const fs::path& folder) {
        std::set<std::string> files;
        for (const auto& entry : fs::recursive_directory_iterator(folder))
            if (!entry.is_directory()) files.insert(entry.path().lexically_relative(folder));
        return files;
    }

    Desktop desktop;
};

TEST_F(MovedInstallationTest, nothingIsOutside) {
    std::vector<std::string> top;
    for (const auto& entry : fs::directory_iterator(prefix())) top.push_back(entry.path().filename());
    std::sort(top.begin(), top.end());
    EXPECT_EQ(top, (std::vector<std::string>{"bin", "etc", "libexec", "share"}));
    EXPECT_TRUE(fs::exists(prefix() + "/etc/xdg/keyrill/keyrill.conf"));
}

TEST_F(MovedInstallationTest, theArchiveHoldsTheSameAndRunsWhereItIsUnpacked) {
    const TemporaryFolder place;
    outputOf(
        {KEYRILL_CPACK, "--config", KEYRILL_BUILD_FOLDER "/CPackConfig.cmake", "-B", place.file("made")});
    const std::string name = std::string("keyrill-") + KEYRILL_VERSION + "-linux-" + KEYRILL_PROCESSOR;
    outputOf({"tar", "-C", place.path(), "-xf", place.file("made/" + name + ".tar.gz")});
    EXPECT_EQ(filesBelow(place.file(name)), filesBelow(prefix()));
    EXPECT_EQ(outputOf({place.file(name) + "/bin/keyrill", "--version"}), "keyrill " KEYRILL_VERSION "\n");
}

TEST_F(MovedInstallationTest, theCheckFindsTheGuard) {
    Child check({prefix() + "/bin/keyrill", "--check"}, desktop.options("report"));
    check.wait();
    const std::string report = contentOf(desktop.file("report"));
    EXPECT_NE(report.find("ok  Pressing keys: by XTEST\n"), std::string::npos) << report;
    EXPECT_EQ(report.find("keyrill-guard"), std::string::npos) << report;
}

TEST_F(MovedInstallationTest, recordsAndPlaysByThePresetHotKeys) {
    const Terminal terminal(desktop.display());
    const Child keyrill({prefix() + "/bin/keyrill"}, desktop.options("product.log"));
    // The last one that it takes.
    ASSERT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
    desktop.press("ctrl+super+r");
    desktop.run({"xdotool", "type", "moved"});
    EXPECT_EQ(terminal.typed(5), "moved");
    desktop.press("ctrl+super+s");
    desktop.press("ctrl+super+p");
    EXPECT_EQ(terminal.typed(10), "movedmoved");
}

}  // namespace

// SPDX-License-Identifier: MIT
//
// What KeyFileSettings writes, and when.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "linux/LeftOver.h"
#include "platform/Descriptor.h"
#include "platform/linux/KeyFileSettings.h"
#include "support/Child.h"

namespace fs = std::filesystem;

namespace {

/// A device of its own, which nobody can rename or remove, not even root: the file system of terminals knows
/// neither.
class TerminalDevice {
  public:
    TerminalDevice() : m_control(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)) {
        EXPECT_TRUE(m_control && grantpt(m_control.number()) == 0 && unlockpt(m_control.number()) == 0);
    }

    std::string path() const { return ptsname(m_control.number()); }

  private:
    Descriptor m_control;
};

class StoredSettingsTest : public testing::Test {
  protected:
    void write(const std::string& content) const {
        fs::create_directories(folder.file("config/keyrill"));
        std::ofstream(file) << content;
    }

    std::vector<std::string> namesInFolder() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder.file("config/keyrill"))) {
            names.push_back(entry.path().filename());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    /// A write replaces the file by another.
    ino_t identity() const {
        struct stat status {};
        return stat(file.c_str(), &status) == 0 ? status.st_ino : 0;
    }

    static mode_t modeOf(const std::string& path) {
        struct stat status {};
        return stat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : 0;
    }

    KeyFileSettings settings() {
        return KeyFileSettings(folders, [this] { ++turnsAwaited; });
    }

    TemporaryFolder folder;
    const std::string file = folder.file("config/keyrill/keyrill.conf");
    const ConfigFolders folders{folder.file("config"), {folder.file("xdg")}};
    int turnsAwaited = 0;
};

TEST_F(StoredSettingsTest, areReadBackAtOnceAndByTheNextStart) {
    {
        KeyFileSettings store = settings();
        store.setInteger("stopCode", -1);
        store.setBool("launchOnLogin", true);
        store.setBool("notFirstRun", false);
        EXPECT_EQ(store.integer("stopCode"), -1);
        EXPECT_EQ(store.integer("launchOnLogin"), 1);
        EXPECT_EQ(store.integer("notFirstRun"), 0);
        EXPECT_TRUE(store.synchronize());
    }
    const KeyFileSettings next = settings();
    EXPECT_EQ(next.integer("stopCode"), -1);
    EXPECT_EQ(next.integer("launchOnLogin"), 1);
    EXPECT_EQ(next.integer("notFirstRun"), 0);
}

TEST_F(StoredSettingsTest, areWrittenAsDocumented) {
    KeyFileSettings store = settings();
    store.setInteger("recordFlags", 0x140000);
    store.setBool("launchOnLogin", false);
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(contentOf(file), "[Settings]\nlaunchOnLogin=false\nrecordFlags=1310720\n");
}

TEST_F(StoredSettingsTest, areForTheUserAlone) {
    KeyFileSettings store = settings();
    store.setInteger("a", 1);
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(modeOf(file), 0600U);
    EXPECT_EQ(modeOf(folder.file("config/keyrill")), 0700U);
    EXPECT_EQ(modeOf(folder.file("config")), 0700U);
}

TEST_F(StoredSettingsTest, becomeForTheUserAlone) {
    write("[Settings]\n");
    fs::permissions(file, static_cast<fs::perms>(0644));
    KeyFileSettings store = settings();
    store.setInteger("a", 1);
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(modeOf(file), 0600U);
}

TEST_F(StoredSettingsTest, waitForTheTurnsEndAndAreOneWrite) {
    KeyFileSettings store = settings();
    store.setInteger("a", 1);
    store.setInteger("b", 2);
    store.setBool("c", true);
    EXPECT_FALSE(fs::exists(file));
    EXPECT_EQ(turnsAwaited, 1);
    store.endTurn();
    EXPECT_EQ(contentOf(file), "[Settings]\na=1\nb=2\nc=true\n");
    const ino_t written = identity();
    store.endTurn();
    EXPECT_EQ(identity(), written);
    store.setInteger("a", 2);
    EXPECT_EQ(turnsAwaited, 2);
}

TEST_F(StoredSettingsTest, areNotWrittenAgainAtTheTurnsEndAfterASave) {
    KeyFileSettings store = settings();
    store.setInteger("a", 1);
    EXPECT_TRUE(store.synchronize());
    const ino_t written = identity();
    store.endTurn();
    EXPECT_EQ(identity(), written);
}

TEST_F(StoredSettingsTest, areNotWrittenWhereNothingChanged) {
    write("[Settings]\na=1\nb=true\n");
    const ino_t before = identity();
    KeyFileSettings store = settings();
    store.setInteger("a", 1);
    store.setBool("b", true);
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(identity(), before);
}

TEST_F(StoredSettingsTest, areWrittenWhereOnlyALowerDomainHasTheValue) {
    fs::create_directories(folder.file("xdg/keyrill"));
    std::ofstream(folder.file("xdg/keyrill/keyrill.conf")) << "[Settings]\na=1\n";
    KeyFileSettings store = settings();
    store.setInteger("a", 1);
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(contentOf(file), "[Settings]\na=1\n");
    EXPECT_EQ(contentOf(folder.file("xdg/keyrill/keyrill.conf")), "[Settings]\na=1\n");
}

TEST_F(StoredSettingsTest, areStoredAtTheLatestAtTheEnd) {
    settings().setInteger("a", 1);
    EXPECT_EQ(contentOf(file), "[Settings]\na=1\n");
}

TEST_F(StoredSettingsTest, leaveUnknownKeysGroupsAndComments) {
    const std::string start = "# mine\n\n[Settings]\nunknown=x y\n# of a\na=";
    const std::string end = "\n\n[Other]\nk[de]=v\n# the end\n";
    write(start + "0" + end);
    for (int value = 1; value < 4; ++value) {
        KeyFileSettings store = settings();
        store.setInteger("a", value);
        EXPECT_TRUE(store.synchronize());
    }
    EXPECT_EQ(contentOf(file), start + "3" + end);
}

TEST_F(StoredSettingsTest, leaveWhatOthersChangedMeanwhile) {
    write("[Settings]\na=1\nb=1\n");
    KeyFileSettings store = settings();
    write("[Settings]\na=1\nb=7\nc=7\n");
    store.setInteger("a", 2);
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(contentOf(file), "[Settings]\na=2\nb=7\nc=7\n");
}

TEST_F(StoredSettingsTest, followALinkThatStays) {
    fs::create_directories(folder.file("dotfiles"));
    fs::create_directories(folder.file("config/keyrill"));
    fs::create_symlink("../../dotfiles/k.conf", file);
    KeyFileSettings store = settings();
    store.setInteger("a", 1);
    EXPECT_TRUE(store.synchronize());
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(contentOf(folder.file("dotfiles/k.conf")), "[Settings]\na=1\n");
}

TEST_F(StoredSettingsTest, areSweptOfWhatAKilledRunLeft) {
    write("[Settings]\na=1\n");
    const std::vector<std::string> kept = {"keyrill.conf", "keyrill.conf.backup", "keyrill.conf.OLD",
                                           "keyrill.conf.BACKUP", "keyrill.conf.bad-20200101-000000"};
    for (const std::string& name : kept) {
        std::ofstream(folder.file("config/keyrill/" + name), std::ios::app) << "";
    }
    makeLeftOver(folder.file("config/keyrill"));
    EXPECT_EQ(settings().integer("a"), 1);
    auto expected = kept;
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(namesInFolder(), expected);
}

TEST_F(StoredSettingsTest, areKeptAsideWhereTheFileIsNoKeyFile) {
    write("[Settings]\na=1\nnonsense\n");
    KeyFileSettings store = settings();
    const auto fault = store.takeFault();
    ASSERT_TRUE(fault);
    EXPECT_EQ(store.takeFault(), std::nullopt);
    EXPECT_EQ(store.integer("a"), std::nullopt);
    const auto names = namesInFolder();
    ASSERT_EQ(names.size(), 1U);
    EXPECT_TRUE(testing::internal::RE::FullMatch(names[0], "keyrill\\.conf\\.bad-[0-9]+-[0-9]+")) << names[0];
    EXPECT_EQ(fault->hint, "It was renamed to " + folder.file("config/keyrill/" + names[0]) +
                               ", and the settings begin anew.");
    EXPECT_EQ(contentOf(folder.file("config/keyrill/" + names[0])), "[Settings]\na=1\nnonsense\n");
    store.setInteger("b", 2);
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(contentOf(file), "[Settings]\nb=2\n");
}

/// What a link in the settings file's place may lead to without being of any use.
class UselessTargetTest : public StoredSettingsTest, public testing::WithParamInterface<std::string> {
  protected:
    /// Makes what the parameter names.
    fs::path target() {
        fs::path path = folder.file("others");
        if (GetParam() == "folder") fs::create_directory(path);
        if (GetParam() == "text") std::ofstream(path) << "anybody's";
        if (GetParam() == "pipe") mkfifo(path.c_str(), 0600);
        if (GetParam() == "process") return "/proc/self/status";
        if (GetParam() == "device") return m_device.path();
        return path;
    }

  private:
    TerminalDevice m_device;
};

TEST_P(UselessTargetTest, staysAndOnlyTheLinkIsPutAside) {
    const fs::path others = target();
    const auto type = fs::symlink_status(others).type();
    fs::create_directories(folder.file("config/keyrill"));
    fs::create_symlink(others, file);
    KeyFileSettings store = settings();
    const auto fault = store.takeFault();
    ASSERT_TRUE(fault);
    const auto names = namesInFolder();
    ASSERT_EQ(names.size(), 1U);
    const std::string aside = folder.file("config/keyrill/" + names[0]);
    EXPECT_EQ(fault->hint, "It was renamed to " + aside + ", and the settings begin anew.");
    EXPECT_EQ(fs::read_symlink(aside), others);
    EXPECT_EQ(fs::symlink_status(others).type(), type);
    store.setInteger("b", 2);
    EXPECT_TRUE(store.synchronize());
    // Nobody writes to the device, so that reading it would take for ever.
    ASSERT_FALSE(fs::is_symlink(file));
    EXPECT_EQ(contentOf(file), "[Settings]\nb=2\n");
    EXPECT_TRUE(GetParam() != "text" || contentOf(others) == "anybody's");
}

INSTANTIATE_TEST_SUITE_P(ALinkTo, UselessTargetTest,
                         testing::Values("folder", "text", "pipe", "device", "process"),
                         [](const auto& kind) { return kind.param; });

TEST_F(StoredSettingsTest, areAllKeptAsideHoweverFastTheyCome) {
    for (int number = 0; number < 3; ++number) {
        write("nonsense " + std::to_string(number));
        EXPECT_TRUE(settings().takeFault());
    }
    EXPECT_EQ(namesInFolder().size(), 3U);
}

TEST_F(StoredSettingsTest, areKeptAsideWhateverIsWrongWithTheFile) {
    for (const std::string& content :
         {std::string("[Settings"), std::string("\0\0\0\0", 4), std::string("a=1\n"),
          std::string("[Settings]\na=1\n\0b=2\n", 20), std::string("\x89PNG\r\n\x1A\n")}) {
        write(content);
        EXPECT_TRUE(settings().takeFault()) << testing::PrintToString(content);
        EXPECT_FALSE(fs::exists(file));
    }
}

TEST_F(StoredSettingsTest, areKeptAsideWhenTheFileWasSpoiltMeanwhile) {
    KeyFileSettings store = settings();
    write("nonsense");
    store.setInteger("a", 1);
    EXPECT_TRUE(store.synchronize());
    EXPECT_TRUE(store.takeFault());
    EXPECT_EQ(contentOf(file), "[Settings]\na=1\n");
    EXPECT_EQ(namesInFolder().size(), 2U);
}

TEST_F(StoredSettingsTest, tellWhyTheyCannotBeStored) {
    std::ofstream(folder.file("config")) << "no folder";
    KeyFileSettings store = settings();
    store.setInteger("a", 1);
    EXPECT_EQ(store.synchronize().error().message,
              "The settings folder " + folder.file("config/keyrill") + " cannot be made: Not a directory");
    EXPECT_EQ(store.integer("a"), 1);
}

TEST_F(StoredSettingsTest, tellALastingFailureOfTurnsOnce) {
    std::ofstream(folder.file("config")) << "no folder";
    KeyFileSettings store = settings();
    for (int turn = 0; turn < 3; ++turn) {
        store.setInteger("a", turn);
        store.endTurn();
    }
    EXPECT_TRUE(store.takeFault());
    EXPECT_EQ(store.takeFault(), std::nullopt);
    EXPECT_EQ(turnsAwaited, 3);
}

TEST_F(StoredSettingsTest, tellAFailureOfASaveToItsCallerAlone) {
    std::ofstream(folder.file("config")) << "no folder";
    KeyFileSettings store = settings();
    store.setInteger("a", 1);
    EXPECT_FALSE(store.synchronize());
    store.endTurn();
    EXPECT_EQ(store.takeFault(), std::nullopt);
}

TEST_F(StoredSettingsTest, storeWhatFailedWithTheNextSet) {
    std::ofstream(folder.file("config")) << "no folder";
    KeyFileSettings store = settings();
    store.setInteger("a", 1);
    EXPECT_FALSE(store.synchronize());
    fs::remove(folder.file("config"));
    store.setInteger("b", 2);
    store.endTurn();
    EXPECT_EQ(contentOf(file), "[Settings]\na=1\nb=2\n");
    EXPECT_EQ(store.takeFault(), std::nullopt);
}

}  // namespace

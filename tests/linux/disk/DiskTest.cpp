// SPDX-License-Identifier: MIT
//
// Macro files, recordings and settings on disks that are full or read-only.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "linux/disk/PrivateMounts.h"
#include "platform/linux/KeyFileSettings.h"
#include "platform/linux/LocalMacroFiles.h"
#include "platform/linux/LocalRecordings.h"

namespace fs = std::filesystem;

namespace {

/// So many pages are free, and so many bytes are to be written.
class FullDiskTest : public testing::TestWithParam<std::tuple<unsigned long, std::size_t>> {
  protected:
    unsigned long freePages() const { return std::get<0>(GetParam()); }
    std::size_t size() const { return std::get<1>(GetParam()); }
    bool fits() const { return size() <= freePages() * pageSize(); }

    SmallDisk disk;
};

TEST_P(FullDiskTest, aMacroFileIsWrittenWholeOrLeftAsItWas) {
    const std::string old(2 * pageSize() + 1, 'o');
    std::ofstream(disk.file("a.keyrill")) << old;
    disk.fillUntil(freePages());
    const std::string text(size(), 'n');
    LocalMacroFiles files(disk.path(), disk.path());
    const Result<> written = files.write(disk.file("a.keyrill"), text);
    EXPECT_EQ(static_cast<bool>(written), fits());
    EXPECT_EQ(contentOf(disk.file("a.keyrill")), fits() ? text : old);
    EXPECT_EQ(disk.names(), (std::vector<std::string>{"a.keyrill", "filler"}));
    if (!written) {
        EXPECT_EQ(written.error().message,
                  "The file " + disk.file("a.keyrill") + " cannot be written: No space left on device");
    }
}

TEST_P(FullDiskTest, aNewMacroFileIsWrittenWholeOrNotAtAll) {
    disk.fillUntil(freePages());
    LocalMacroFiles files(disk.path(), disk.path());
    EXPECT_EQ(static_cast<bool>(files.write(disk.file("a.keyrill"), std::string(size(), 'n'))), fits());
    EXPECT_EQ(fs::exists(disk.file("a.keyrill")), fits());
    EXPECT_EQ(disk.names().size(), fits() ? 2U : 1U);
}

TEST_P(FullDiskTest, aRecordingIsKeptWholeOrNotAtAll) {
    // The folders take no page of it.
    const std::string folder = disk.file("keyrill/history");
    fs::create_directories(folder);
    disk.fillUntil(freePages());
    LocalRecordings recordings(disk.file("keyrill"));
    const std::string comment = "-- a\n";
    const auto name = recordings.keep({.title = "a", .script = std::string(size() - comment.size(), 'n')});
    EXPECT_EQ(static_cast<bool>(name), fits());
    EXPECT_EQ(recordings.all().size(), fits() ? 1U : 0U);
    EXPECT_EQ(disk.names("keyrill/history").size(), fits() ? 1U : 0U);
    if (!name) {
        EXPECT_EQ(name.error().message,
                  "The file " + folder +
                      "/19700101T000000.000Z.keyrill cannot be written: No space left on device");
    }
}

TEST_P(FullDiskTest, theSettingsAreStoredWholeOrLeftAsTheyWere) {
    fs::create_directories(disk.file("keyrill"));
    const std::string file = disk.file("keyrill/keyrill.conf");
    // The unknown key makes the file as large as it is to be.
    const std::string ending = "a=1\n";
    const std::string start = "[Settings]\nunknown=";
    const std::string old =
        start + std::string(size() - start.size() - ending.size() - 1, 'u') + "\n" + ending;
    std::ofstream(file) << old;
    disk.fillUntil(freePages());
    KeyFileSettings settings({disk.path(), {}});
    settings.setInteger("a", 2);
    settings.endTurn();
    const auto fault = settings.takeFault();
    EXPECT_EQ(!fault, fits());
    EXPECT_EQ(contentOf(file), fits() ? old.substr(0, old.size() - 2) + "2\n" : old);
    EXPECT_EQ(disk.names("keyrill"), std::vector<std::string>{"keyrill.conf"});
    if (fault) {
        EXPECT_EQ(fault->message,
                  "The settings file " + file + " cannot be written: No space left on device");
    }
}

INSTANTIATE_TEST_SUITE_P(WithFewFreePages, FullDiskTest,
                         testing::Combine(testing::Values(0UL, 1UL, 2UL, 3UL),
                                          testing::Values(std::size_t{30}, pageSize(), pageSize() + 1,
                                                          2 * pageSize() + 1, 3 * pageSize() + 1)));

TEST(ReadOnlyDiskTest, aMacroFileIsLeftAsItWas) {
    const SmallDisk disk;
    std::ofstream(disk.file("a.keyrill")) << "old";
    disk.makeReadOnly();
    LocalMacroFiles files(disk.path(), disk.path());
    for (const std::string name : {"a.keyrill", "b.keyrill"}) {
        EXPECT_EQ(files.write(disk.file(name), "new").error().message,
                  "The file " + disk.file(name) + " cannot be written: Read-only file system");
    }
    EXPECT_EQ(contentOf(disk.file("a.keyrill")), "old");
    EXPECT_FALSE(fs::exists(disk.file("b.keyrill")));
}

TEST(ReadOnlyDiskTest, aRecordingThatCannotBeForgottenIsToldAndStays) {
    const SmallDisk disk;
    LocalRecordings recordings(disk.file("keyrill"));
    const auto name = recordings.keep({.title = "a", .script = "beep"});
    ASSERT_TRUE(name);
    disk.makeReadOnly();
    const std::string message = "The file " + disk.file("keyrill/history/") + name.value() +
                                " cannot be deleted: Read-only file system";
    EXPECT_EQ(recordings.forget(name.value()).error().message, message);
    EXPECT_EQ(recordings.forgetAll().error().message, message);
    EXPECT_EQ(recordings.all().size(), 1U);
}

TEST(ReadOnlyDiskTest, aRecordingIsNotKeptWhereNoFolderCanBeMade) {
    const SmallDisk disk;
    disk.makeReadOnly();
    const auto name = LocalRecordings(disk.file("keyrill")).keep({.title = "a", .script = "beep"});
    ASSERT_FALSE(name);
    EXPECT_EQ(name.error().message,
              "The folder " + disk.file("keyrill/history") + " cannot be made: Read-only file system");
}

TEST(ReadOnlyDiskTest, theSettingsAreReadAndTheFailureToStoreThemTold) {
    const SmallDisk disk;
    fs::create_directories(disk.file("keyrill"));
    std::ofstream(disk.file("keyrill/keyrill.conf")) << "[Settings]\na=1\n";
    disk.makeReadOnly();
    KeyFileSettings settings({disk.path(), {}});
    EXPECT_EQ(settings.integer("a"), 1);
    settings.setInteger("a", 2);
    EXPECT_EQ(settings.synchronize().error().message, "The settings file " +
                                                          disk.file("keyrill/keyrill.conf") +
                                                          " cannot be written: Read-only file system");
    EXPECT_EQ(contentOf(disk.file("keyrill/keyrill.conf")), "[Settings]\na=1\n");
}

TEST(ReadOnlyDiskTest, aSpoiltSettingsFileStaysAndIsNotOverwritten) {
    const SmallDisk disk;
    fs::create_directories(disk.file("keyrill"));
    std::ofstream(disk.file("keyrill/keyrill.conf")) << "nonsense";
    disk.makeReadOnly();
    KeyFileSettings settings({disk.path(), {}});
    const auto fault = settings.takeFault();
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->hint, "It could not be put aside either: Read-only file system");
    settings.setInteger("a", 2);
    EXPECT_FALSE(settings.synchronize());
    EXPECT_EQ(contentOf(disk.file("keyrill/keyrill.conf")), "nonsense");
}

TEST(ReadOnlyDiskTest, theFolderForMacrosIsNamedAllTheSame) {
    const SmallDisk disk;
    disk.makeReadOnly();
    EXPECT_EQ(LocalMacroFiles(disk.path(), disk.file("data")).prepareFolder(), disk.file("data/keyrill"));
    EXPECT_FALSE(fs::exists(disk.file("data")));
}

}  // namespace

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    enterPrivateMounts();
    return RUN_ALL_TESTS();
}

// SPDX-License-Identifier: MIT
#include "platform/linux/KeyFileSettings.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "support/Child.h"

namespace {

class KeyFileSettingsTest : public testing::Test {
  protected:
    std::string fileOf(const std::string& domain) const {
        return folder.file(domain + "/keyrill/keyrill.conf");
    }

    void write(const std::string& domain, const std::string& content) const {
        std::filesystem::create_directories(folder.file(domain + "/keyrill"));
        std::ofstream(fileOf(domain)) << content;
    }

    /// What the key reads as after a line of the user's file.
    std::optional<std::int64_t> readAs(const std::string& line) const {
        write("user", "[Settings]\n" + line + "\n");
        return settings().integer("key");
    }

    KeyFileSettings settings() const { return KeyFileSettings(folders()); }
    ConfigFolders folders() const {
        return {folder.file("user"), {folder.file("first"), folder.file("second")}};
    }

    /// What is wrong at the start, one message a line, without their causes.
    std::string faults() const {
        KeyFileSettings store(folders());
        std::string all;
        while (const auto fault = store.takeFault()) {
            EXPECT_NE(fault->hint, "");
            all += fault->message.text().substr(0, fault->message.text().find(": ")) + "\n";
        }
        return all;
    }

    TemporaryFolder folder;
};

TEST_F(KeyFileSettingsTest, hasNothingAndNoFaultWithoutFiles) {
    EXPECT_EQ(settings().integer("recordCode"), std::nullopt);
    EXPECT_EQ(faults(), "");
}

TEST_F(KeyFileSettingsTest, readsIntegers) {
    EXPECT_EQ(readAs("key=15"), 15);
    EXPECT_EQ(readAs("key=-1"), -1);
    EXPECT_EQ(readAs("key = 1310720 "), 1310720);
    EXPECT_EQ(readAs("key=9223372036854775807"), 9223372036854775807);
}

TEST_F(KeyFileSettingsTest, readsBooleansAsIntegers) {
    EXPECT_EQ(readAs("key=true"), 1);
    EXPECT_EQ(readAs("key=false"), 0);
}

TEST_F(KeyFileSettingsTest, readsOtherTextAsZeroButPresent) {
    for (const std::string text :
         {"", "fifteen", "12a", "0x0F", "1.5", "1,000", "9223372036854775808", "TRUE"}) {
        EXPECT_EQ(readAs("key=" + text), 0) << text;
    }
}

TEST_F(KeyFileSettingsTest, readsOnlyItsGroup) {
    write("user", "[Other]\nkey=1\n[Settings]\nthird=3\n");
    EXPECT_EQ(settings().integer("key"), std::nullopt);
    EXPECT_EQ(settings().integer("third"), 3);
}

TEST_F(KeyFileSettingsTest, mindsTheCaseOfNames) { EXPECT_EQ(readAs("Key=1"), std::nullopt); }

TEST_F(KeyFileSettingsTest, takesAFileWithoutItsGroupForEmpty) {
    write("user", "");
    write("first", "# nothing\n");
    write("second", "[Settings]\nkey=2\n");
    EXPECT_EQ(settings().integer("key"), 2);
    EXPECT_EQ(faults(), "");
}

TEST_F(KeyFileSettingsTest, prefersTheUsersValueThenTheFirstFolders) {
    write("user", "[Settings]\na=1\n");
    write("first", "[Settings]\na=2\nb=2\n");
    write("second", "[Settings]\na=3\nb=3\nc=3\n");
    EXPECT_EQ(settings().integer("a"), 1);
    EXPECT_EQ(settings().integer("b"), 2);
    EXPECT_EQ(settings().integer("c"), 3);
    EXPECT_EQ(settings().integer("d"), std::nullopt);
}

TEST_F(KeyFileSettingsTest, takesFromTheInstallationWhatNoOtherFolderHas) {
    write("second", "[Settings]\na=2\n");
    write("installation", "[Settings]\na=3\nb=3\n");
    ConfigFolders all = folders();
    all.installation = folder.file("installation");
    const KeyFileSettings settings(all);
    EXPECT_EQ(settings.integer("a"), 2);
    EXPECT_EQ(settings.integer("b"), 3);
}

TEST_F(KeyFileSettingsTest, readsTheInstallationOnceWhereTheSystemNamesItToo) {
    write("second", "nonsense\n");
    ConfigFolders all = folders();
    all.installation = folder.file("second");
    KeyFileSettings settings(all);
    EXPECT_TRUE(settings.takeFault());
    EXPECT_FALSE(settings.takeFault());
}

TEST_F(KeyFileSettingsTest, prefersAnUnparsableValueToALowerOne) {
    write("user", "[Settings]\na=none\n");
    write("first", "[Settings]\na=2\n");
    EXPECT_EQ(settings().integer("a"), 0);
}

TEST_F(KeyFileSettingsTest, reportsASystemFileThatIsNoKeyFile) {
    write("first", "[Settings]\na=1\nnonsense\n");
    write("second", "[Settings]\na=2\n");
    EXPECT_EQ(faults(), "The settings file " + fileOf("first") + " is not a key file\n");
    EXPECT_EQ(settings().integer("a"), 2);
}

TEST_F(KeyFileSettingsTest, reportsASystemFileThatCannotBeRead) {
    std::filesystem::create_directories(fileOf("first"));
    write("second", "[Settings]\na=2\n");
    EXPECT_EQ(faults(), "The settings file " + fileOf("first") + " cannot be read\n");
    EXPECT_EQ(settings().integer("a"), 2);
}

TEST_F(KeyFileSettingsTest, reportsEveryFaultOnceTheUsersFileFirst) {
    write("user", "nonsense");
    write("first", "nonsense");
    EXPECT_EQ(faults(), "The settings file " + fileOf("user") + " is not a key file\n" +
                            "The settings file " + fileOf("first") + " is not a key file\n");
}

TEST_F(KeyFileSettingsTest, takesAFileInPlaceOfTheFolderForNoFile) {
    std::ofstream(folder.file("user")) << "x";
    EXPECT_EQ(faults(), "");
}

TEST(PresetsTest, areWhatTheProgramDocuments) {
    const TemporaryFolder folder;
    std::filesystem::create_directories(folder.file("keyrill"));
    std::filesystem::copy_file(KEYRILL_PRESETS, folder.file("keyrill/keyrill.conf"));
    KeyFileSettings settings({folder.file("user"), {folder.path()}});
    EXPECT_EQ(settings.takeFault(), std::nullopt);
    EXPECT_EQ(settings.integer("recordCode"), 15);
    EXPECT_EQ(settings.integer("stopCode"), 1);
    EXPECT_EQ(settings.integer("playCode"), 35);
    EXPECT_EQ(settings.integer("multiplePlayCode"), 46);
    for (const std::string name : {"record", "stop", "play", "multiplePlay"}) {
        EXPECT_EQ(settings.integer(name + "Flags"), 0x140000) << name;
    }
}

}  // namespace

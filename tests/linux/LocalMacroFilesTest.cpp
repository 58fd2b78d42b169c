// SPDX-License-Identifier: MIT
#include "platform/linux/LocalMacroFiles.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "linux/LeftOver.h"
#include "support/Child.h"

namespace fs = std::filesystem;

namespace {

class LocalMacroFilesTest : public testing::Test {
  protected:
    void put(const std::string& bytes) const { std::ofstream(file) << bytes; }
    std::string readBack() const { return files.read(file).value(); }
    static mode_t modeOf(const std::string& path) {
        struct stat status {};
        return stat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : 0;
    }

    TemporaryFolder home;
    const std::string support = home.file("Library/Application Support");
    const std::string file = home.file("a.keyrill");
    LocalMacroFiles files{home.path(), home.file("data")};
};

TEST_F(LocalMacroFilesTest, makesTheFolderWhereItsParentIs) {
    fs::create_directories(support);
    EXPECT_EQ(files.prepareFolder(), support + "/Keyrill");
    EXPECT_TRUE(fs::is_directory(support + "/Keyrill"));
    EXPECT_FALSE(fs::exists(home.file("data")));
    EXPECT_EQ(files.prepareFolder(), support + "/Keyrill");
}

TEST_F(LocalMacroFilesTest, sweepsTheFolderOfWhatAKilledWriterLeft) {
    const std::string folder = files.prepareFolder();
    const std::string leftOver = makeLeftOver(folder);
    std::ofstream(folder + "/a.keyrill.BACKUP") << "a user's";
    EXPECT_EQ(files.prepareFolder(), folder);
    EXPECT_FALSE(fs::exists(leftOver));
    EXPECT_TRUE(fs::exists(folder + "/a.keyrill.BACKUP"));
}

TEST_F(LocalMacroFilesTest, makesNothingWhereAnythingStandsInTheFoldersPlace) {
    fs::create_directories(support);
    std::ofstream(support + "/Keyrill") << "a file";
    EXPECT_EQ(files.prepareFolder(), support + "/Keyrill");
    EXPECT_EQ(contentOf(support + "/Keyrill"), "a file");
}

TEST_F(LocalMacroFilesTest, neverMakesTheFoldersParents) {
    for (const std::string& present : {home.path(), home.file("Library")}) {
        fs::create_directories(present);
        EXPECT_EQ(files.prepareFolder(), home.file("data/keyrill"));
        EXPECT_FALSE(fs::exists(support));
    }
    EXPECT_TRUE(fs::is_empty(home.file("Library")));
}

TEST_F(LocalMacroFilesTest, readsNothingThatIsLargerThanAScript) {
    constexpr std::size_t largest = std::size_t{16} * 1024 * 1024;
    put(std::string(largest, 'x'));
    EXPECT_EQ(readBack().size(), largest);
    const Error tooLarge{"The file " + file + " cannot be read: It is larger than 16 MiB",
                         "Choose a smaller file."};
    put(std::string(largest + 1, 'x'));
    EXPECT_EQ(files.read(file).error(), tooLarge);
    // In MacRoman one byte, in UTF-8 two: the script would be larger than the file.
    put(std::string(largest, '\x8E'));
    EXPECT_EQ(files.read(file).error(), tooLarge);
}

TEST_F(LocalMacroFilesTest, elseMakesTheDataFolderForTheUserAlone) {
    EXPECT_EQ(files.prepareFolder(), home.file("data/keyrill"));
    EXPECT_FALSE(fs::exists(home.file("Library")));
    EXPECT_EQ(modeOf(home.file("data")), 0700U);
    EXPECT_EQ(modeOf(home.file("data/keyrill")), 0700U);
}

TEST_F(LocalMacroFilesTest, saysNothingWhereTheFolderCannotBeMade) {
    std::ofstream(home.file("data")) << "a file";
    EXPECT_EQ(files.prepareFolder(), home.file("data/keyrill"));
    EXPECT_EQ(contentOf(home.file("data")), "a file");
}

TEST_F(LocalMacroFilesTest, readsUtf8WithAndWithoutAMark) {
    put("keystroke \"\u00e9\u20ac\"\r\n");
    EXPECT_EQ(readBack(), "keystroke \"\u00e9\u20ac\"\r\n");
    put("\xEF\xBB\xBFkeystroke \"\u00e9\"");
    EXPECT_EQ(readBack(), "keystroke \"\u00e9\"");
}

TEST_F(LocalMacroFilesTest, readsUtf16WithItsMark) {
    put(std::string("\xFF\xFEt\0\xAC\x20", 6));
    EXPECT_EQ(readBack(), "t\u20ac");
}

TEST_F(LocalMacroFilesTest, readsAllElseAsMacRoman) {
    put("keystroke \"caf\x8E\" \xC2");
    EXPECT_EQ(readBack(), "keystroke \"caf\u00e9\" \u00ac");
}

TEST_F(LocalMacroFilesTest, readsAnEmptyFile) {
    put("");
    EXPECT_EQ(readBack(), "");
}

TEST_F(LocalMacroFilesTest, tellsWhyAFileCannotBeRead) {
    EXPECT_EQ(files.read(file).error(),
              (Error{"The file " + file + " cannot be read: No such file or directory",
                     "Check that the file is there and who may read it."}));
}

TEST_F(LocalMacroFilesTest, writesByteForByte) {
    const std::string text = "tell application \"System Events\"\n\tkey code 0 \r\nend tell";
    EXPECT_TRUE(files.write(file, text));
    EXPECT_EQ(contentOf(file), text);
    EXPECT_EQ(modeOf(file), 0600U);
    EXPECT_EQ(readBack(), text);
    EXPECT_TRUE(files.write(file, ""));
    EXPECT_EQ(contentOf(file), "");
}

TEST_F(LocalMacroFilesTest, writesOverAFileThroughALinkKeepingBoth) {
    put("old");
    fs::permissions(file, static_cast<fs::perms>(0644));
    fs::create_symlink("a.keyrill", home.file("link.keyrill"));
    EXPECT_TRUE(files.write(home.file("link.keyrill"), "new"));
    EXPECT_TRUE(fs::is_symlink(home.file("link.keyrill")));
    EXPECT_EQ(contentOf(file), "new");
    EXPECT_EQ(modeOf(file), 0644U);
}

TEST_F(LocalMacroFilesTest, refusesATextThatIsNotAsciiAndLeavesTheFile) {
    put("old");
    EXPECT_EQ(
        files.write(file, "one\ntwo \u00e9").error(),
        (Error{
            "Line 2 has the character \"\u00e9\" (U+00E9) at place 5, and a macro file can hold ASCII only.",
            "Replace the character in the macro."}));
    EXPECT_EQ(contentOf(file), "old");
    EXPECT_FALSE(files.write(home.file("new.keyrill"), "\u00e9"));
    EXPECT_FALSE(fs::exists(home.file("new.keyrill")));
}

TEST_F(LocalMacroFilesTest, tellsWhyAFileCannotBeWritten) {
    EXPECT_EQ(
        files.write(home.file("no/a.keyrill"), "x").error(),
        (Error{"The file " + home.file("no/a.keyrill") + " cannot be written: No such file or directory",
               "Make room, check who may write there, or choose another place."}));
}

}  // namespace

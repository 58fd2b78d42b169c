// SPDX-License-Identifier: MIT
#include "app/macros/DraftFiles.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "support/Child.h"

namespace {

using Drafts = std::map<std::string, Draft>;

class DraftFilesTest : public testing::Test {
  protected:
    unsigned modeOf(const std::string& path) const {
        struct stat state {};
        return stat(path.c_str(), &state) == 0 ? state.st_mode & 0777U : 0;
    }
    TemporaryFolder root;
    const std::string folder = root.file("state/keyrill/unsaved");
    DraftFiles drafts{folder};
};

TEST_F(DraftFilesTest, nothingIsMadeBeforeThereIsSomethingToKeep) {
    EXPECT_EQ(drafts.all(), Drafts{});
    drafts.forget("Greeting.keyrill");
    EXPECT_FALSE(std::filesystem::exists(root.file("state")));
}

TEST_F(DraftFilesTest, keepsTextsByTheirPathsForTheUserAlone) {
    const Drafts kept = {{"Greeting.keyrill", {"one\n\ntwo é", fingerprintOf("one")}},
                         {"work/é \xff.keyrill", {"", fingerprintOf("")}},
                         {"from.keyrill", {"from here\n", ""}}};
    for (const auto& [path, draft] : kept) ASSERT_TRUE(drafts.keep(path, draft));
    EXPECT_EQ(drafts.all(), kept);
    EXPECT_EQ(DraftFiles(folder).all(), kept);
    EXPECT_EQ(modeOf(folder), 0700U);
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        EXPECT_EQ(modeOf(entry.path()), 0600U);
}

/// The standard's own value for "abc".
TEST_F(DraftFilesTest, fingerprintsAreTheStandards) {
    EXPECT_EQ(fingerprintOf("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
}

TEST_F(DraftFilesTest, readsWhatEarlierVersionsHaveKept) {
    ASSERT_TRUE(drafts.keep("a", {"text", fingerprintOf("saved")}));
    const auto file = std::filesystem::directory_iterator(folder)->path();
    std::ofstream(file) << "a\ntext\nand more";
    EXPECT_EQ(drafts.all(), (Drafts{{"a", {"text\nand more"}}}));
}

TEST_F(DraftFilesTest, theLatestTextCounts) {
    ASSERT_TRUE(drafts.keep("a", {"first and longer"}));
    ASSERT_TRUE(drafts.keep("a", {"second"}));
    EXPECT_EQ(drafts.all(), (Drafts{{"a", {"second"}}}));
}

TEST_F(DraftFilesTest, whatIsForgottenLeavesNoFile) {
    ASSERT_TRUE(drafts.keep("a", {"text"}));
    drafts.forget("a");
    EXPECT_TRUE(std::filesystem::is_empty(folder));
}

TEST_F(DraftFilesTest, aFileThatIsNoDraftIsNoneAndAHalfOneNeither) {
    ASSERT_TRUE(drafts.keep("a", {"text"}));
    std::ofstream(folder + "/note.txt") << "a\ntext";
    std::ofstream(folder + "/00.draft") << "b\ntext";
    std::ofstream(folder + "/00.draft.new") << "c\nte";
    EXPECT_EQ(drafts.all(), (Drafts{{"a", {"text"}}}));
}

TEST_F(DraftFilesTest, tellsWhereItCannotWrite) {
    std::filesystem::create_directories(root.file("state/keyrill"));
    std::ofstream(folder) << "a file in the folder's place";
    EXPECT_EQ(drafts.keep("a", {"text"}).error().message,
              "The folder " + folder + " cannot be written to: Not a directory.");
}

TEST_F(DraftFilesTest, tellsWhereItCannotReplaceWhatIsThereAndLeavesNothing) {
    ASSERT_TRUE(drafts.keep("a", {"text"}));
    const std::string file = std::filesystem::directory_iterator(folder)->path();
    std::filesystem::remove(file);
    std::filesystem::create_directory(file);
    EXPECT_EQ(drafts.keep("a", {"text"}).error().message,
              "The folder " + folder + " cannot be written to: Is a directory.");
    std::filesystem::remove(file);
    EXPECT_TRUE(std::filesystem::is_empty(folder));
}

}  // namespace

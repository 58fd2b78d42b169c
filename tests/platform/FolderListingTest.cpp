// SPDX-License-Identifier: MIT
#include "platform/FolderListing.h"

#include <gtest/gtest.h>

namespace {

FileStamp stamp(std::uint64_t file, std::uint64_t version = 0) {
    return {.identity = {file}, .version = {version}};
}

TEST(FolderListingTest, nothingHasBecomeOfWhatIsTheSame) {
    const FolderListing listing{{"a", stamp(1)}, {"b", stamp(2)}};
    EXPECT_EQ(changesBetween(listing, listing), FolderChanges{});
    EXPECT_EQ(changesBetween({}, {}), FolderChanges{});
}

TEST(FolderListingTest, filesAppearChangeAndGo) {
    EXPECT_EQ(changesBetween({{"a", stamp(1)}, {"b", stamp(2)}}, {{"b", stamp(2, 1)}, {"c", stamp(3)}}),
              (FolderChanges{.appeared = {"c"}, .gone = {"a"}, .changed = {"b"}}));
}

TEST(FolderListingTest, anotherFileUnderTheNameIsAChangedOne) {
    EXPECT_EQ(changesBetween({{"a", stamp(1)}}, {{"a", stamp(2)}}), (FolderChanges{.changed = {"a"}}));
}

TEST(FolderListingTest, whereTheOldFileIsElsewhereTheNewOneAppears) {
    EXPECT_EQ(changesBetween({{"a", stamp(1)}}, {{"a", stamp(2)}, {"b", stamp(1)}}),
              (FolderChanges{.appeared = {"a"}, .renamed = {{"a", "b"}}}));
}

TEST(FolderListingTest, aRenamedFileMayHaveChanged) {
    EXPECT_EQ(changesBetween({{"a", stamp(1)}}, {{"b", stamp(1, 5)}}),
              (FolderChanges{.renamed = {{"a", "b"}}}));
}

TEST(FolderListingTest, filesChangeTheirPlaces) {
    EXPECT_EQ(changesBetween({{"a", stamp(1)}, {"b", stamp(2)}, {"c", stamp(3)}},
                             {{"a", stamp(3)}, {"b", stamp(1)}, {"c", stamp(2)}}),
              (FolderChanges{.renamed = {{"c", "a"}, {"a", "b"}, {"b", "c"}}}));
}

TEST(FolderListingTest, aFileWithTwoNamesLosesOne) {
    EXPECT_EQ(changesBetween({{"a", stamp(1)}, {"b", stamp(1)}}, {{"b", stamp(1)}}),
              (FolderChanges{.gone = {"a"}}));
    EXPECT_EQ(changesBetween({{"a", stamp(1)}, {"b", stamp(1)}}, {{"b", stamp(1)}, {"c", stamp(1)}}),
              (FolderChanges{.renamed = {{"a", "c"}}}));
    EXPECT_EQ(changesBetween({{"a", stamp(1)}}, {{"b", stamp(1)}, {"c", stamp(1)}}),
              (FolderChanges{.appeared = {"c"}, .renamed = {{"a", "b"}}}));
}

}  // namespace

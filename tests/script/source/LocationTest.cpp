// SPDX-License-Identifier: MIT
#include "platform/script/source/Location.h"

#include <gtest/gtest.h>

namespace {

using script::Location;

TEST(LocationTest, countsLinesAndCharactersFromOne) {
    EXPECT_EQ(script::locate("", 0), (Location{1, 1}));
    EXPECT_EQ(script::locate("ab\ncd", 4), (Location{2, 2}));
    EXPECT_EQ(script::locate("é😀x", 6), (Location{1, 3}));
}

TEST(LocationTest, eachLineEndCountsOnce) {
    EXPECT_EQ(script::locate("a\r\nb\rc\n\nd", 8), (Location{5, 1}));
}

TEST(LocationTest, anOffsetBehindTheEndIsTheEnd) { EXPECT_EQ(script::locate("ab", 99), (Location{1, 3})); }

TEST(LocationTest, goesForwardsAndBackwards) {
    script::Locator locator("a\nb\nc");
    EXPECT_EQ(locator.at(2), (Location{2, 1}));
    EXPECT_EQ(locator.at(4), (Location{3, 1}));
    EXPECT_EQ(locator.at(0), (Location{1, 1}));
}

}  // namespace

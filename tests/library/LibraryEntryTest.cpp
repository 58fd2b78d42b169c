// SPDX-License-Identifier: MIT
#include "library/LibraryEntry.h"

#include <gtest/gtest.h>

namespace {

TEST(LibraryEntryTest, hasTheNameOfItsFileAndTheGroupOfItsFolder) {
    const LibraryEntry entry{"work/mail/Good.morning.KEYRILL"};
    EXPECT_EQ(entry.name(), "Good.morning");
    EXPECT_EQ(entry.group(), "work/mail");
}

TEST(LibraryEntryTest, liesInNoGroupInTheLibrarysOwnFolder) {
    const LibraryEntry entry{"a.keyrill"};
    EXPECT_EQ(entry.name(), "a");
    EXPECT_EQ(entry.group(), "");
}

}  // namespace

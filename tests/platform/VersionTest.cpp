// SPDX-License-Identifier: MIT
#include "platform/Version.h"

#include <gtest/gtest.h>

TEST(VersionTest, comparesNumberByNumber) {
    EXPECT_TRUE(isNewerVersion("1.1", "1.0"));
    EXPECT_TRUE(isNewerVersion("1.10", "1.9"));
    EXPECT_TRUE(isNewerVersion("2", "1.9.9"));
    EXPECT_TRUE(isNewerVersion("1.0.1", "1.0"));
    EXPECT_FALSE(isNewerVersion("1.0", "1.1"));
    EXPECT_FALSE(isNewerVersion("1.9", "1.10"));
    EXPECT_FALSE(isNewerVersion("1.0", "1.0"));
}

TEST(VersionTest, takesMissingNumbersForZero) {
    EXPECT_FALSE(isNewerVersion("1.0", "1"));
    EXPECT_FALSE(isNewerVersion("1", "1.0"));
    EXPECT_FALSE(isNewerVersion("1.0.0.0", "1.0"));
    EXPECT_TRUE(isNewerVersion("0.1", "0"));
    EXPECT_FALSE(isNewerVersion("0", "0.0"));
}

TEST(VersionTest, ignoresZerosBeforeANumber) { EXPECT_FALSE(isNewerVersion("1.01", "1.1")); }

TEST(VersionTest, finds64BitNumbers) {
    EXPECT_TRUE(isNewerVersion("1.18446744073709551615", "1.18446744073709551614"));
}

TEST(VersionTest, takesNoOtherTextForAVersion) {
    for (const std::string_view text : {"", ".", "1.", ".1", "1..2", "-1", "+1", " 2", "2 ", "2.0beta", "two",
                                        "99999999999999999999", "2\n"}) {
        EXPECT_FALSE(isNewerVersion(text, "1.0")) << text;
        EXPECT_FALSE(isNewerVersion("1.0", text)) << text;
    }
}

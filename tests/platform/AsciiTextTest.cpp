// SPDX-License-Identifier: MIT
#include "platform/AsciiText.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string complaint(std::string_view text) { return checkAscii(text).error().message; }

TEST(AsciiTextTest, isContentWithAscii) {
    EXPECT_TRUE(checkAscii(""));
    std::string all;
    for (char character = 0; character < 127; ++character) all += character;
    EXPECT_TRUE(checkAscii(all + '\x7F'));
}

TEST(AsciiTextTest, namesLinePlaceAndCharacter) {
    EXPECT_EQ(complaint("é"),
              R"(Line 1 has the character "é" (U+00E9) at place 1, and a macro file can hold ASCII only.)");
    EXPECT_EQ(complaint("tell\n\n\tkeystroke \"€\"\nend é"),
              R"(Line 3 has the character "€" (U+20AC) at place 13, and a macro file can hold ASCII only.)");
    EXPECT_EQ(complaint("x😀"),
              R"(Line 1 has the character "😀" (U+1F600) at place 2, and a macro file can hold ASCII only.)");
}

TEST(AsciiTextTest, namesWhatCannotBeShownByItsNumber) {
    EXPECT_EQ(complaint("\xC2\x85"),
              "Line 1 has the character (U+0085) at place 1, and a macro file can hold ASCII only.");
    EXPECT_EQ(complaint("a\n\xFFz"),
              "Line 2 has the byte 0xFF at place 1, and a macro file can hold ASCII only.");
}

}  // namespace

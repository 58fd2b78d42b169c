// SPDX-License-Identifier: MIT
#include "platform/Utf8.h"

#include <gtest/gtest.h>

namespace {

Utf8Character character(std::uint32_t code, std::size_t length) { return {code, length}; }
const Utf8Character none{std::nullopt, 1};

TEST(Utf8Test, decodesTheFirstAndTheLastOfEachLength) {
    EXPECT_EQ(firstCharacter(std::string_view("\0", 1)), character(0, 1));
    EXPECT_EQ(firstCharacter("\x7F"), character(0x7F, 1));
    EXPECT_EQ(firstCharacter("\xC2\x80"), character(0x80, 2));
    EXPECT_EQ(firstCharacter("\xDF\xBF"), character(0x7FF, 2));
    EXPECT_EQ(firstCharacter("\xE0\xA0\x80"), character(0x800, 3));
    EXPECT_EQ(firstCharacter("\xEF\xBF\xBF"), character(0xFFFF, 3));
    EXPECT_EQ(firstCharacter("\xF0\x90\x80\x80"), character(0x10000, 4));
    EXPECT_EQ(firstCharacter("\xF4\x8F\xBF\xBF"), character(0x10FFFF, 4));
}

TEST(Utf8Test, looksAtTheFirstCharacterOnly) { EXPECT_EQ(firstCharacter("é\xFF"), character(0xE9, 2)); }

TEST(Utf8Test, takesNothingElseForACharacter) {
    for (const std::string_view text : {
             "\x80", "\xBF", "\xFE", "\xFF", "\xF8\x88\x80\x80\x80",      // no first byte
             "\xC3", "\xE2\x82", "\xF0\x9F\x98", "\xC3(",                 // cut off
             "\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF",  // overlong
             "\xED\xA0\x80", "\xED\xBF\xBF", "\xF4\x90\x80\x80",          // a surrogate, too great
         }) {
        EXPECT_EQ(firstCharacter(text), none) << testing::PrintToString(std::string(text));
    }
}

TEST(Utf8Test, findsTheFirstByteThatIsNone) {
    EXPECT_EQ(invalidUtf8("plain text of some length, é, 日本, 😀"), std::nullopt);
    EXPECT_EQ(invalidUtf8("eight bytes \x80"), 12U);
    EXPECT_EQ(invalidUtf8("\xC0\x80"), 0U);          // overlong
    EXPECT_EQ(invalidUtf8("a\xE0\x9F\xBF"), 1U);     // overlong
    EXPECT_EQ(invalidUtf8("\xED\xA0\x80"), 0U);      // a surrogate
    EXPECT_EQ(invalidUtf8("\xF4\x90\x80\x80"), 0U);  // beyond U+10FFFF
    EXPECT_EQ(invalidUtf8("ab\xE2\x82"), 2U);        // cut off
    EXPECT_EQ(invalidUtf8("\xF0\x9F\x98\x80\xFF"), 4U);
}

}  // namespace

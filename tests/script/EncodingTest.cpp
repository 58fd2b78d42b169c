// SPDX-License-Identifier: MIT
#include "platform/script/Encoding.h"

#include <gtest/gtest.h>

namespace {

using script::decodedScript;

TEST(EncodingTest, utf8IsTakenAsItStands) { EXPECT_EQ(decodedScript("é¬😀"), "é¬😀"); }

TEST(EncodingTest, aByteOrderMarkIsTakenAway) {
    EXPECT_EQ(decodedScript("\xEF\xBB\xBF"
                            "a"),
              "a");
}

TEST(EncodingTest, utf16OfEitherByteOrderIsKnownByItsMark) {
    EXPECT_EQ(decodedScript(std::string("\xFF\xFE"
                                        "a\0\xE9\0\x3D\xD8\x00\xDE",
                                        10)),
              "aé😀");
    EXPECT_EQ(decodedScript(std::string("\xFE\xFF"
                                        "\0a\0\xE9\xD8\x3D\xDE\x00",
                                        10)),
              "aé😀");
}

TEST(EncodingTest, brokenUtf16IsReplaced) {
    EXPECT_EQ(decodedScript(std::string("\xFF\xFE"
                                        "\x3D\xD8"
                                        "a\0",
                                        6)),
              "\uFFFDa");
    EXPECT_EQ(decodedScript(std::string("\xFF\xFE"
                                        "\x00\xDE",
                                        4)),
              "\uFFFD");
    EXPECT_EQ(decodedScript(std::string("\xFF\xFE"
                                        "a\0b",
                                        5)),
              "a\uFFFD");
}

TEST(EncodingTest, otherBytesAreMacRoman) {
    EXPECT_EQ(decodedScript("\xC2\n\xC7\xC8 \xAD\xB2\xB3\xD6 \xD2\xD3"), "¬\n«» ≠≤≥÷ “”");
    EXPECT_EQ(decodedScript("caf\x8E \xDB"), "café €");
}

TEST(EncodingTest, invalidUtf8IsFoundAtItsFirstByte) {
    EXPECT_EQ(script::invalidUtf8("plain text of some length, é, 日本, 😀"), std::nullopt);
    EXPECT_EQ(script::invalidUtf8("eight bytes \x80"), 12U);
    EXPECT_EQ(script::invalidUtf8("\xC0\x80"), 0U);          // overlong
    EXPECT_EQ(script::invalidUtf8("a\xE0\x9F\xBF"), 1U);     // overlong
    EXPECT_EQ(script::invalidUtf8("\xED\xA0\x80"), 0U);      // a surrogate
    EXPECT_EQ(script::invalidUtf8("\xF4\x90\x80\x80"), 0U);  // beyond U+10FFFF
    EXPECT_EQ(script::invalidUtf8("ab\xE2\x82"), 2U);        // cut off
    EXPECT_EQ(script::invalidUtf8("\xF0\x9F\x98\x80\xFF"), 4U);
}

}  // namespace

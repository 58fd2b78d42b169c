// SPDX-License-Identifier: MIT
#include "platform/Encoding.h"

#include <gtest/gtest.h>

namespace {

TEST(EncodingTest, utf8IsTakenAsItStands) { EXPECT_EQ(decodedText("é¬😀"), "é¬😀"); }

TEST(EncodingTest, aByteOrderMarkIsTakenAway) {
    EXPECT_EQ(decodedText("\xEF\xBB\xBF"
                          "a"),
              "a");
}

TEST(EncodingTest, utf16OfEitherByteOrderIsKnownByItsMark) {
    EXPECT_EQ(decodedText(std::string("\xFF\xFE"
                                      "a\0\xE9\0\x3D\xD8\x00\xDE",
                                      10)),
              "aé😀");
    EXPECT_EQ(decodedText(std::string("\xFE\xFF"
                                      "\0a\0\xE9\xD8\x3D\xDE\x00",
                                      10)),
              "aé😀");
}

TEST(EncodingTest, brokenUtf16IsReplaced) {
    EXPECT_EQ(decodedText(std::string("\xFF\xFE"
                                      "\x3D\xD8"
                                      "a\0",
                                      6)),
              "\uFFFDa");
    EXPECT_EQ(decodedText(std::string("\xFF\xFE"
                                      "\x00\xDE",
                                      4)),
              "\uFFFD");
    EXPECT_EQ(decodedText(std::string("\xFF\xFE"
                                      "a\0b",
                                      5)),
              "a\uFFFD");
}

TEST(EncodingTest, otherBytesAreMacRoman) {
    EXPECT_EQ(decodedText("\xC2\n\xC7\xC8 \xAD\xB2\xB3\xD6 \xD2\xD3"), "¬\n«» ≠≤≥÷ “”");
    EXPECT_EQ(decodedText("caf\x8E \xDB"), "café €");
}

TEST(EncodingTest, theByteForWhichItIsMacRomanIsKnown) {
    EXPECT_EQ(firstMacRomanByte("caf\xC3\xA9 \x8E"), 6U);
    EXPECT_EQ(firstMacRomanByte("é¬😀"), std::nullopt);
    EXPECT_EQ(firstMacRomanByte(""), std::nullopt);
    EXPECT_EQ(firstMacRomanByte("\xEF\xBB\xBF\x8E"), 3U);
    EXPECT_EQ(firstMacRomanByte("\xFF\xFE\x8E"), std::nullopt);
    EXPECT_EQ(firstMacRomanByte("\xFE\xFF\x8E"), std::nullopt);
}

}  // namespace

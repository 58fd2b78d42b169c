// SPDX-License-Identifier: MIT
#include "platform/script/source/Literal.h"

#include <gtest/gtest.h>

#include <string>

#include "core/HostileLocale.h"

namespace {

TEST(LiteralTest, realsReadAsSpelled) {
    EXPECT_EQ(script::realOf("0.01"), 0.01);
    EXPECT_EQ(script::realOf("1."), 1.0);
    EXPECT_EQ(script::realOf(".5"), 0.5);
    EXPECT_EQ(script::realOf("1e-05"), 1e-05);
    EXPECT_EQ(script::realOf("1.23457e+06"), 1234570.0);
}

TEST(LiteralTest, realsBeyondTheRangeAreNoneAndTinyOnesAreZero) {
    EXPECT_EQ(script::realOf("1e309"), std::nullopt);
    EXPECT_EQ(script::realOf("9e99999999999999999999"), std::nullopt);
    EXPECT_EQ(script::realOf(std::string(400, '9')), std::nullopt);
    EXPECT_EQ(script::realOf("1e-999"), 0.0);
    EXPECT_EQ(script::realOf("0." + std::string(400, '0') + "1"), 0.0);
}

TEST(LiteralTest, numbersDoNotDependOnTheLocale) {
    const HostileLocale german;
    EXPECT_EQ(script::realOf("0.5"), 0.5);
    EXPECT_EQ(script::numberInText("1.5"), 1.5);
    EXPECT_EQ(script::numberInText("0,5"), std::nullopt);
}

TEST(LiteralTest, numbersInTextMayHaveBlanksAroundAndASign) {
    EXPECT_EQ(script::numberInText(" 5\n"), 5.0);
    EXPECT_EQ(script::numberInText("-0.5"), -0.5);
    EXPECT_EQ(script::numberInText("+1e2"), 100.0);
}

TEST(LiteralTest, otherTextsAreNoNumbers) {
    for (const char* text :
         {"", "  ", "abc", "5x", "5 5", "inf", "-inf", "nan", "--5", "+-5", "0x10", ".", "-", "e5"}) {
        EXPECT_EQ(script::numberInText(text), std::nullopt) << text;
    }
}

TEST(LiteralTest, textIsPlainWithoutBackslashesAndCarriageReturns) {
    EXPECT_TRUE(script::isPlain("a\nb é"));
    EXPECT_FALSE(script::isPlain("a\\n"));
    EXPECT_FALSE(script::isPlain("a\r\n"));
}

TEST(LiteralTest, theFiveEscapesAreUnescaped) {
    EXPECT_EQ(script::unescape(R"(a\"b\\c\td\ne\rf)").text, "a\"b\\c\td\ne\rf");
}

TEST(LiteralTest, lineEndsInATextBecomeLineFeeds) {
    EXPECT_EQ(script::unescape("a\r\nb\rc\nd").text, "a\nb\nc\nd");
}

TEST(LiteralTest, otherEscapesAreFaults) {
    EXPECT_EQ(script::unescape(R"(ab\x)").badEscape, 2U);
    EXPECT_EQ(script::unescape(R"(\a)").badEscape, 0U);
}

}  // namespace

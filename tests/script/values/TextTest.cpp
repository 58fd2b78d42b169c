// SPDX-License-Identifier: MIT
#include "platform/script/values/Text.h"

#include <gtest/gtest.h>

namespace script {
namespace {

const std::string longText(1000, 'a');

TEST(TextTest, whatIsPutBehindDoesNotChangeTheText) {
    const Text first(longText);
    const Text second = first.with("b");
    const Text third = second.with("c");
    const Text other = second.with("d");
    EXPECT_EQ(first.str(), longText);
    EXPECT_EQ(second.str(), longText + "b");
    EXPECT_EQ(third.str(), longText + "bc");
    EXPECT_EQ(other.str(), longText + "bd");
}

TEST(TextTest, becomesLongerInItsPlaceOnceItGrows) {
    const Text grown = Text(longText).with("b").with("c");
    EXPECT_TRUE(grown.with("d").sharesBytesOf(grown));
    EXPECT_FALSE(Text("a").with("b").sharesBytesOf(Text("a")));
}

TEST(TextTest, movesAFewTimesOnlyHoweverOftenItGrows) {
    Text text("");
    int moves = 0;
    for (int i = 0; i < 100000; ++i) {
        const Text longer = text.with("x");
        if (longer.str().size() > 256 && !longer.sharesBytesOf(text)) ++moves;
        text = longer;
    }
    EXPECT_EQ(text.str().size(), 100000U);
    EXPECT_LE(moves, 12);
}

TEST(TextTest, mayBePutBehindItself) {
    const Text grown = Text(longText).with("b").with("c");
    EXPECT_EQ(grown.with(grown.str()).str(), longText + "bc" + longText + "bc");
}

TEST(TextTest, knowsItsCharactersAlsoWhereItGrew) {
    Text text("");
    for (int i = 0; i < 1000; ++i) text = text.with(i % 2 == 0 ? "é" : "😀");
    EXPECT_FALSE(text.isAscii());
    EXPECT_EQ(text.characterCount(), 1000U);
    EXPECT_EQ(text.offsetOf(0), 0U);
    EXPECT_EQ(text.offsetOf(501), 250U * 6 + 2);
    EXPECT_EQ(text.offsetOf(1000), 3000U);
    EXPECT_EQ(text.with("a").characterCount(), 1001U);
    EXPECT_EQ(text.with("b").offsetOf(1001), 3001U);
    EXPECT_EQ(text.characterCount(), 1000U);
}

TEST(TextTest, isAsciiWhereBothPartsAre) {
    EXPECT_TRUE(Text(longText).with("b").isAscii());
    EXPECT_FALSE(Text(longText).with("é").isAscii());
    EXPECT_FALSE(Text(longText + "é").with("b").isAscii());
}

}  // namespace
}  // namespace script

// SPDX-License-Identifier: MIT
#include "core/AppendedText.h"

#include <gtest/gtest.h>

#include <random>

namespace {

TEST(AppendedTextTest, startsEmpty) { EXPECT_EQ(AppendedText().text(), ""); }

TEST(AppendedTextTest, holdsAllPartsInTheirOrder) {
    std::mt19937 random(7);
    std::uniform_int_distribution<std::size_t> lengths(0, 12);
    AppendedText text;
    std::string expected;
    for (int number = 0; number < 100'000; ++number) {
        const std::string part(lengths(random), static_cast<char>('a' + number % 26));
        text.append(part);
        expected += part;
        ASSERT_EQ(text.text().size(), expected.size());
    }
    EXPECT_EQ(text.text(), expected);
}

TEST(AppendedTextTest, takesAPartThatIsLongerThanAllBeforeIt) {
    AppendedText text;
    std::string expected;
    for (const std::size_t length : {1U, 20'000U, 1U, 5'000'000U, 3U}) {
        const std::string part(length, 'x');
        text.append(part);
        expected += part;
        ASSERT_EQ(text.text(), expected);
    }
}

TEST(AppendedTextTest, movesSeldomAndIntoTwiceTheRoom) {
    AppendedText text;
    const std::string part = "Shift+A ";
    std::size_t moves = 0;
    const char* place = text.text().data();
    while (text.text().size() < 1'000'000) {
        text.append(part);
        if (text.text().data() == place) continue;
        place = text.text().data();
        EXPECT_GE(text.text().capacity(), 2 * (text.text().size() - part.size()));
        ++moves;
    }
    EXPECT_LE(moves, 12);
}

}  // namespace

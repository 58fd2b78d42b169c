// SPDX-License-Identifier: MIT
#include "platform/run/TextPlan.h"

#include <gtest/gtest.h>

namespace {

using Characters = std::vector<char32_t>;

TEST(TextPlanTest, charactersOfAllLengthsAreRead) {
    EXPECT_EQ(charactersOf("aé漢😀").value(), (Characters{U'a', U'é', U'漢', U'😀'}));
    EXPECT_EQ(charactersOf("").value(), Characters{});
}

TEST(TextPlanTest, lineEndsAreOneReturn) {
    EXPECT_EQ(charactersOf("\r\n\n\r\r\n").value(), (Characters{U'\r', U'\r', U'\r', U'\r'}));
}

TEST(TextPlanTest, whatIsNotUtf8IsRefusedAtItsByte) {
    const std::vector<std::pair<std::string, int>> rows = {{"a\x80", 2},
                                                           {"\xC0\x80", 1},
                                                           {"ab\xE2\x82", 3},
                                                           {"\xED\xA0\x80", 1},
                                                           {"\xF5\x80\x80\x80", 1},
                                                           {"\xF4\x90\x80\x80", 1},
                                                           {"\xE0\x80\xAF", 1},
                                                           {"\xC3(", 1}};
    for (const auto& [text, byte] : rows) {
        const auto characters = charactersOf(text);
        ASSERT_FALSE(characters) << byte;
        EXPECT_EQ(characters.error().message,
                  "The text to type is not UTF-8 at byte " + std::to_string(byte) + ".");
    }
}

TEST(TextPlanTest, charactersAreNamedWithTheirCode) {
    EXPECT_EQ(nameOf(U'é'), R"("é" (U+00E9))");
    EXPECT_EQ(nameOf(U'😀'), R"("😀" (U+1F600))");
    EXPECT_EQ(nameOf(1), "U+0001");
}

}  // namespace

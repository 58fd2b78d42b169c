// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "engine/MacroPlayer.h"

namespace {

struct Row {
    const char* text;
    std::int32_t count;
};

class PlayCountTest : public testing::TestWithParam<Row> {};

TEST_P(PlayCountTest, isTheNumberThatTheTextBeginsWith) {
    EXPECT_EQ(playCountFromText(GetParam().text), GetParam().count) << '"' << GetParam().text << '"';
}

INSTANTIATE_TEST_SUITE_P(
    Texts, PlayCountTest,
    testing::Values(Row{"3", 3}, Row{"0", 0}, Row{"-2", -2}, Row{"+3", 3}, Row{"2x", 2}, Row{"abc", 0},
                    Row{"", 0}, Row{" ", 0}, Row{"  7", 7}, Row{"\t7", 7}, Row{" -7 ", -7}, Row{"007", 7},
                    Row{"1.9", 1}, Row{"1e3", 1}, Row{"1,000", 1}, Row{"0x10", 0}, Row{"-", 0}, Row{"+", 0},
                    Row{"+-2", 0}, Row{"- 2", 0}, Row{"x2", 0}, Row{"２", 0}, Row{"2147483647", 2147483647},
                    Row{"2147483648", 2147483647}, Row{"99999999999", 2147483647},
                    Row{"99999999999999999999999999", 2147483647}, Row{"-2147483648", -2147483647 - 1},
                    Row{"-2147483649", -2147483647 - 1}, Row{"-99999999999", -2147483647 - 1}));

}  // namespace

// SPDX-License-Identifier: MIT
#include "platform/Parts.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace std::string_view_literals;
using Parts = std::vector<std::string>;

Parts partsOf(std::string_view text, char end) {
    Parts parts;
    while (!text.empty()) parts.emplace_back(takePart(text, end));
    return parts;
}

TEST(PartsTest, eachGoesWithItsEnd) {
    EXPECT_EQ(partsOf("one\n\ntwo\n", '\n'), (Parts{"one", "", "two"}));
    EXPECT_EQ(partsOf("\n", '\n'), Parts{""});
    EXPECT_EQ(partsOf("", '\n'), Parts{});
}

TEST(PartsTest, theLastMayLackItsEnd) {
    EXPECT_EQ(partsOf("path=/run,guid=1", ','), (Parts{"path=/run", "guid=1"}));
    EXPECT_EQ(partsOf("xterm\0XTerm\0"sv, '\0'), (Parts{"xterm", "XTerm"}));
}

}  // namespace

// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "platform/script/syntax/Parser.h"
#include "script/Printed.h"

namespace {

std::string repeated(const std::string& text, int count) {
    std::string out;
    for (int i = 0; i < count; ++i) out += text;
    return out;
}

TEST(ParserBoundTest, thirtyTwoTellsNestAndNoMore) {
    const std::string tell = R"(tell app "A" to )";
    EXPECT_EQ(printedError(repeated(tell, 32) + "delay"), "");
    EXPECT_EQ(printedError(repeated(tell, 33) + "delay"),
              "1:513 -2760 Tell statements are nested too deeply.");
}

TEST(ParserBoundTest, hostileNestingEndsInAnErrorAndNotInTheStack) {
    const std::string message = " -2741 Expected at most 200 levels of nesting but found more.";
    EXPECT_EQ(printedError(repeated("(", 100000)), "1:200" + message);
    EXPECT_EQ(printedError(repeated("{", 100000)), "1:200" + message);
    EXPECT_EQ(printedError(repeated("- ", 100000)), "1:399" + message);
    EXPECT_EQ(printedError(repeated("repeat\n", 100000)), "201:1" + message);
}

TEST(ParserBoundTest, longChainsOfOperatorsAreNoNesting) {
    EXPECT_EQ(printedError("delay 1" + repeated(" + 1", 100000)), "");
}

TEST(ParserBoundTest, listsAreBounded) {
    EXPECT_EQ(printedError("{1" + repeated(",1", 99999) + "}"), "");
    EXPECT_EQ(printedError("{1" + repeated(",1", 100000) + "}"),
              "1:200002 -2741 Expected at most 100000 items in a list but found more.");
}

}  // namespace

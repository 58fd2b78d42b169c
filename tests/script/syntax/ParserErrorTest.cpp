// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "platform/script/syntax/Parser.h"
#include "script/Printed.h"

namespace {

struct Row {
    const char* what;
    std::string source;
    std::string error;
};

std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.what; }

class ParserErrorTest : public testing::TestWithParam<Row> {};

TEST_P(ParserErrorTest, saysWhereAndWhat) { EXPECT_EQ(printedError(GetParam().source), GetParam().error); }

const std::string se = "tell app \"System Events\"\n";

std::string repeated(const std::string& text, int count) {
    std::string out;
    for (int i = 0; i < count; ++i) out += text;
    return out;
}

INSTANTIATE_TEST_SUITE_P(
    Blocks, ParserErrorTest,
    testing::Values(
        Row{"a block that is not closed", se + "\tkey code 1\n",
            "3:1 -2741 Expected “end” but found end of script."},
        Row{"blocks that cross", se + "repeat 2 times\nend tell\nend repeat",
            "3:1 -2741 Expected “end” but found “end tell”."},
        Row{"an end too many", "end tell", "1:1 -2741 Expected expression but found “end tell”."},
        Row{"something after the end", "repeat\nend repeat 1",
            "2:12 -2741 Expected end of line but found number."},
        Row{"no target", "tell\nend", "1:5 -2741 Expected expression but found end of line."},
        Row{"an application without a name", "tell app to", "1:10 -2741 Expected “\"” but found “to”."},
        Row{"something after the target", "tell app \"A\" \"B\"",
            "1:14 -2741 Expected end of line but found “\"”."},
        Row{"a process outside", "tell process \"P\"\nend",
            "1:14 -2741 Expected end of line but found “\"”."},
        Row{"exit outside a loop", se + "exit repeat\nend",
            "2:1 -2755 Exit statement was not in a repeat loop."},
        Row{"exit after a loop", "repeat\nend\nexit", "3:1 -2755 Exit statement was not in a repeat loop."},
        Row{"exit before a loop on its line", "tell app \"A\" to repeat 2 times exit",
            "1:32 -2741 Expected end of line but found “exit”."}));

INSTANTIATE_TEST_SUITE_P(
    Lines, ParserErrorTest,
    testing::Values(
        Row{"two statements on one line", se + "delay 1 delay 2\nend",
            "2:9 -2741 Expected end of line but found identifier."},
        Row{"two commands on one line", se + "key code 1 key code 2\nend",
            "2:12 -2741 Expected end of line but found “key”."},
        Row{"no separator between statements", se + "\tkey code 1; key code 2\nend tell",
            "2:12 -2741 Expected end of line but found unknown token."},
        Row{"not an operator", "delay 1 != 2", "1:9 -2741 Expected end of line but found unknown token."},
        Row{"a word of the language where a value belongs", "delay repeat",
            "1:7 -2741 Expected expression but found “repeat”."},
        Row{"a continuation with something after it", "delay ¬ 1",
            "1:7 -2741 Expected end of line after “¬”."},
        Row{"keystroke outside", "keystroke \"a\"", "1:11 -2741 Expected end of line but found “\"”."},
        Row{"key code outside", "key code 36", "1:5 -2741 Expected end of line but found identifier."},
        Row{"keystroke told to another application", se + "tell app \"Other\"\nkeystroke \"a\"\nend\nend",
            "3:11 -2741 Expected end of line but found “\"”."},
        Row{"using without modifiers", se + "key code 1 using\nend",
            "2:17 -2741 Expected expression but found end of line."},
        Row{"lines count with CR and CR LF", "\r\r\n\n  +",
            "4:4 -2741 Expected expression but found end of script."},
        Row{"columns count characters", "\"é😀\" 1", "1:6 -2741 Expected end of line but found number."}));

INSTANTIATE_TEST_SUITE_P(
    Tokens, ParserErrorTest,
    testing::Values(
        Row{"text never closed", se + "\tkeystroke \"abc\nend tell\n",
            "2:12 -2741 Expected “\"” but found end of script."},
        Row{"a bad escape", "\"ab\\x\"", "1:4 -2741 Expected “\"” but found unknown token."},
        Row{"a comment never closed", "delay 1\n(* a", "2:5 -2741 Expected “*)” but found end of script."},
        Row{"curly quotes", se + "keystroke “hello”\nend",
            "2:11 -2741 Expected expression but found unknown token “ (text stands between straight "
            "quotes)."},
        Row{"raw codes", "«event prcskcod» 1", "1:1 -2741 Raw codes («…») are not supported."},
        Row{"a list without its end", "{1, 2", "1:6 -2741 Expected “,” or “}” but found end of script."},
        Row{"a list with a comma too many", "{1, }", "1:5 -2741 Expected expression but found “}”."},
        Row{"a parenthesis without its end", "(1\n", "1:3 -2741 Expected “)” but found end of line."},
        Row{"a number too large", "delay 1e999",
            "1:7 -2702 The result of a numeric operation was too large."}));

INSTANTIATE_TEST_SUITE_P(
    Refused, ParserErrorTest,
    testing::Values(Row{"programs", "do shell script \"reboot\"",
                        "1:1 -2741 “do shell script” is refused: a macro can press keys and nothing else."},
                    Row{"scripts in text", se + "\trun script \"delay 1\"\nend",
                        "2:2 -2741 “run script” is refused: a macro can press keys and nothing else."},
                    Row{"scripts in files", "load script \"x\"",
                        "1:1 -2741 “load script” is refused: a macro can press keys and nothing else."}));

TEST(ParserBoundTest, thirtyTwoTellsNestAndNoMore) {
    const std::string tell = "tell app \"A\" to ";
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

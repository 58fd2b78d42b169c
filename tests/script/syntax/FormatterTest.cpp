// SPDX-License-Identifier: MIT
#include "platform/script/syntax/Formatter.h"

#include <gtest/gtest.h>

#include "script/CaseFile.h"
#include "script/SourceRow.h"
#include "script/Traced.h"

namespace {

std::string format(const std::string& source) {
    const auto result = script::formatted(source);
    return result ? result.value() : "error: " + result.error().message.text();
}

using Row = SourceRow;

class FormatterTest : public testing::TestWithParam<Row> {};

TEST_P(FormatterTest, bringsAScriptIntoOneLayout) { EXPECT_EQ(format(GetParam().source), GetParam().result); }

INSTANTIATE_TEST_SUITE_P(
    Layouts, FormatterTest,
    testing::Values(
        Row{"levels", "tell app \"System Events\"\nkey code 1\n  repeat 2 times\nkey code 2\nend\nend",
            "tell app \"System Events\"\n\tkey code 1\n\trepeat 2 times\n\t\tkey code 2\n\tend\nend\n"},
        Row{"divided blocks", "if x then\n1\nelse if y\n2\nelse\n3\nend if",
            "if x then\n\t1\nelse if y\n\t2\nelse\n\t3\nend if\n"},
        Row{"errors", "try\n1\non error m\n2\nend try", "try\n\t1\non error m\n\t2\nend try\n"},
        Row{"handlers", "on f ( a,b )\nreturn a\nend f\nf(1,2)", "on f (a, b)\n\treturn a\nend f\nf(1, 2)\n"},
        Row{"one blank between words", "set   x\tto 1+2*3&{1,2 , {a:5,b : 6}}",
            "set x to 1 + 2 * 3 & {1, 2, {a:5, b:6}}\n"},
        Row{"reserved words in lower case, names as they are", "SET Foo TO TRUE\nFoo",
            "set Foo to true\nFoo\n"},
        Row{"signs", "delay -1\nset x to - 1\nset x to x-1\nset x to (-1)\nitem -1 of x\n{-1, x - -1}",
            "delay -1\nset x to -1\nset x to x - 1\nset x to (-1)\nitem -1 of x\n{-1, x - -1}\n"},
        Row{"signs behind words that take a value",
            "on f(x)\nif x then return - 1\nreturn - x\nend f\ntext - 2 thru - 1 of x\nrepeat with i from - "
            "1 to - "
            "5 by - 1\nend repeat\nx starts with - 1 and not - x = + 2",
            "on f(x)\n\tif x then return -1\n\treturn -x\nend f\ntext -2 thru -1 of x\nrepeat with i from -1 "
            "to "
            "-5 by -1\nend repeat\nx starts with -1 and not -x = +2\n"},
        Row{"operators behind words that are names", "set total to 1\nset y to total -1\ncount -1\nresult -1",
            "set total to 1\nset y to total - 1\ncount - 1\nresult - 1\n"},
        Row{"two signs are no comment", "x - - 1", "x - -1\n"},
        Row{"comparisons by their signs", "1/=2\n1<=2\n1>=2", "1 ≠ 2\n1 ≤ 2\n1 ≥ 2\n"},
        Row{"comments", "-- a\nif x then -- b\n-- c\n1(* d *)\n# e\nend if--f",
            "-- a\nif x then -- b\n\t-- c\n\t1 (* d *)\n\t# e\nend if --f\n"},
        Row{"joined lines", "set x to 1 + ¬\n2\nif x then\nset x to ¬ -- why\n5\nend",
            "set x to 1 + ¬\n\t2\nif x then\n\tset x to ¬ -- why\n\t\t5\nend\n"},
        Row{"lines joined one after another", "1 ¬\n¬\n¬ -- a\n+ 2", "1 ¬\n\t¬\n\t¬ -- a\n\t+ 2\n"},
        Row{"a line joined with an empty one", "set x to 1 ¬\n\nbeep", "set x to 1 ¬\n\nbeep\n"},
        Row{"a line joined with the end", "beep ¬\n\n\n", "beep ¬\n"},
        Row{"empty lines", "\n\n1\n\n\n\n2\n\n", "1\n\n2\n"}, Row{"line ends", "1\r\n2\r3", "1\n2\n3\n"},
        Row{"nothing", "\n \n", ""},
        Row{"possessives and ordinals", "x 's item 2\n1st item of x", "x's item 2\n1st item of x\n"},
        Row{"properties", "property p:{a : 1}", "property p : {a:1}\n"},
        Row{"texts stay", "\"a  ,b\\\" c\"", "\"a  ,b\\\" c\"\n"},
        Row{"a mark of byte order goes", "\uFEFFbeep", "beep\n"},
        Row{"a second one is refused", "\uFEFF\uFEFFbeep",
            "error: Expected expression but found unknown token U+FEFF."},
        Row{"errors are told", "if", "error: Expected expression but found end of script."}));

TEST(LayoutOfCasesTest, formattingTwiceChangesNothingAndTheMeaningStays) {
    for (const FileCase& row : readCaseFiles(SCRIPT_CASE_FOLDER)) {
        const auto result = script::formatted(row.source);
        if (!result) continue;
        const std::string& once = result.value();
        EXPECT_EQ(format(once), once) << row.name;
        const Traced before = traced(row.source);
        const Traced after = traced(once);
        EXPECT_EQ(after.events, before.events) << row.name << "\n" << once;
        EXPECT_EQ(after.value, before.value) << row.name << "\n" << once;
        EXPECT_EQ(after.error.number, before.error.number) << row.name << "\n" << once;
    }
}

}  // namespace

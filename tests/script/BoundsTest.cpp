// SPDX-License-Identifier: MIT
//
// Scripts that go as deep, as long or as large as scripts can: each comes to a result or to an error with its
// number, on a stack of a megabyte.
#include <gtest/gtest.h>

#include "platform/script/code/Compiler.h"
#include "platform/script/run/Run.h"
#include "platform/script/syntax/Formatter.h"
#include "platform/script/values/Shared.h"
#include "script/RecordingInjector.h"
#include "script/SmallStack.h"
#include "script/Traced.h"

namespace {

std::string times(std::size_t count, const std::string& piece) {
    std::string text;
    text.reserve(count * piece.size());
    for (std::size_t i = 0; i < count; ++i) text += piece;
    return text;
}

std::string enclosed(std::size_t depth, const std::string& open, const std::string& inner,
                     const std::string& close) {
    return times(depth, open) + inner + times(depth, close);
}

struct Row {
    const char* name;
    std::string source;
    std::string outcome;  ///< "NUMBER MESSAGE", or the value
};

std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.name; }

std::string outcomeOf(const std::string& source) {
    const Traced result = traced(source);
    if (result.phase == Traced::Phase::none) return result.value;
    return std::to_string(result.error.number) + " " + result.error.message.text();
}

class BoundsTest : public testing::TestWithParam<Row> {};

/// What a run held is let go, also what holds itself.
TEST_P(BoundsTest, endsAndLetsGo) {
    onSmallStack([] {
        const std::size_t held = script::HeldMemory::bytes();
        EXPECT_EQ(outcomeOf(GetParam().source), GetParam().outcome);
        EXPECT_EQ(script::HeldMemory::bytes(), held);
    });
}

class LayoutBoundsTest : public testing::TestWithParam<Row> {};

TEST_P(LayoutBoundsTest, formatsWhatCompiles) {
    onSmallStack([] {
        const bool compiles = bool(script::compile(GetParam().source));
        EXPECT_EQ(bool(script::formatted(GetParam().source)), compiles);
    });
}

const auto nameOf = [](const auto& row) { return std::string(row.param.name); };

const std::string tooDeep = "-2741 Expected at most 200 levels of nesting but found more.";
const std::string overflow = "-2706 Stack overflow.";
const std::string outOfMemory = "-108 Out of memory.";
const std::string tooManyItems = "-108 A list holds at most 100000 items.";

/// What nests in the text of a script.
const auto nesting = testing::Values(
    Row{"parentheses", "set x to " + enclosed(20000, "(", "1", ")"), tooDeep},
    Row{"lists", "set x to " + enclosed(20000, "{", "1", "}"), tooDeep},
    Row{"records", "set x to " + enclosed(20000, "{a:", "1", "}"), tooDeep},
    Row{"listsThatNeverEnd", "set x to " + times(20000, "{"), tooDeep},
    Row{"signs", "set x to " + times(20000, "- ") + "1", tooDeep},
    Row{"negations", "set x to " + times(20000, "not ") + "true", tooDeep},
    Row{"powers", "set x to 1" + times(20000, "^1"), tooDeep},
    Row{"containers", "set x to " + times(20000, "item 1 of ") + "x", tooDeep},
    Row{"properties", "set x to " + times(20000, "length of ") + "x", tooDeep},
    Row{"references", "set x to " + times(20000, "a reference to ") + "x", tooDeep},
    Row{"indexSigns", "set x to items 1 thru " + times(20000, "- ") + "1 of {1}", tooDeep},
    Row{"errorNumberSigns", "try\non error number " + times(20000, "- ") + "1\nend", tooDeep},
    Row{"calls", "set x to " + enclosed(20000, "f(", "1", ")"), tooDeep},
    Row{"commands", times(20000, "log ") + "1", tooDeep},
    Row{"conditionsInOneLine", times(20000, "if true then ") + "beep", tooDeep},
    Row{"conditions", enclosed(20000, "if true then\n", "", "end\n"), tooDeep},
    Row{"loops", enclosed(20000, "repeat\n", "", "end\n"), tooDeep},
    Row{"tries", enclosed(20000, "try\n", "", "end\n"), tooDeep},
    Row{"tells", enclosed(20000, "tell me\n", "", "end\n"), "-2760 Tell statements are nested too deeply."},
    Row{"targets", "set " + enclosed(20000, "{", "x", "}") + " to 1", tooDeep},
    Row{"patterns", "on f(" + enclosed(20000, "{", "x", "}") + ")\nend", tooDeep},
    Row{"comments", enclosed(20000, "(*", "", "*)") + "1", "1"},
    Row{"commentsThatNeverEnd", times(20000, "(*"), "-2741 Expected “*)” but found end of script."},
    Row{"closingParentheses", times(1000000, ")"), "-2741 Expected expression but found “)”."});

INSTANTIATE_TEST_SUITE_P(Nesting, BoundsTest, nesting, nameOf);
INSTANTIATE_TEST_SUITE_P(Nesting, LayoutBoundsTest, nesting, nameOf);

/// What goes on and on without nesting.
const auto length = testing::Values(
    Row{"sum", "set x to 0" + times(20000, " + 1"), "20000"},
    Row{"conjunction", "set x to true" + times(20000, " and true"), "true"},
    Row{"swallowedConjunction", "set x to true\ncount of x" + times(20000, " and x") + "\n7", "7"},
    Row{"coercions", "set x to 5" + times(20000, " as text as integer"), "5"},
    Row{"coercionsAndSums", "set x to 0" + times(20000, " as integer + 1"), "20000"},
    Row{"members", "set x to {1}" + times(20000, "'s reverse"), "{1}"},
    Row{"memberElements", "set x to \"a\"" + times(20000, "'s item 1"), "\"a\""},
    Row{"memberContents", "set x to 1" + times(20000, "'s contents"), "1"},
    Row{"memberCalls", "on f()\nend\nset x to me" + times(20000, "'s f()"),
        "-2763 No result was returned for some argument of this expression."},
    Row{"membersInParentheses", "set x to " + enclosed(150, "(", "{1}", times(200, "'s reverse") + ")"),
        "{1}"},
    Row{"elseIfs", "if false then\n" + times(5000, "else if false then\n") + "else\n7\nend", "7"},
    Row{"lines", times(20000, "¬\n") + "1", "1"},
    Row{"listItems", "count {" + times(99999, "1,") + "1}", "100000"},
    Row{"tooManyListItems", "count {" + times(100000, "1,") + "1}",
        "-2741 Expected at most 100000 items in a list but found more."});

INSTANTIATE_TEST_SUITE_P(Length, BoundsTest, length, nameOf);
INSTANTIATE_TEST_SUITE_P(Length, LayoutBoundsTest, length, nameOf);

/// What nests in the values of a run.
const std::string deepList = "set x to {}\nrepeat 20000 times\nset x to {x}\nend\n";
const std::string deepRecord = "set x to {a:1}\nrepeat 20000 times\nset x to {a:x}\nend\n";
const std::string deepReference =
    "set x to {1}\nrepeat 20000 times\nset l to {x}\nset x to a reference to item 1 of l\nend\n";

INSTANTIATE_TEST_SUITE_P(
    DeepValues, BoundsTest,
    testing::Values(
        Row{"areLetGo", deepList + "set x to 0", "0"}, Row{"recordsAreLetGo", deepRecord + "set x to 0", "0"},
        Row{"referencesAreLetGo", deepReference + "set x to 0", "0"},
        Row{"areLetGoAtTheEnd", deepList + "1", "1"}, Row{"asText", deepList + "x as text", overflow},
        Row{"joined", deepList + "\"\" & x", overflow}, Row{"copied", deepList + "copy x to y", overflow},
        Row{"recordsCopied", deepRecord + "copy x to y", overflow},
        Row{"compared", deepList + "set y to x\n" + deepList + "x = y", overflow},
        Row{"comparedWithItself", deepList + "x = x", "true"},
        Row{"recordsCompared", deepRecord + "set y to x\n" + deepRecord + "x = y", overflow},
        Row{"contained", deepList + "set y to x\n" + deepList + "{x} contains {y}", overflow},
        Row{"typed", "tell application \"System Events\"\n" + deepList + "keystroke x\nend", overflow},
        Row{"counted", deepList + "count x", "1"},
        Row{"asNumber", deepList + "try\nx as integer\non error number n\nn\nend", "-1700"},
        Row{"asList", deepList + "count (x as list)", "1"},
        Row{"inAMessage", deepList + "try\nx + 1\non error m number n\n{n, (count m) < 10000}\nend",
            "{-1700, true}"},
        Row{"referenceRead", deepReference + "count (contents of x)", overflow}),
    nameOf);

/// Lists and records that hold themselves.
const std::string ownList = "set x to {1}\nset end of x to x\n";
const std::string ownRecord = "set x to {a:1, b:2}\nset b of x to x\n";
const std::string twoOwnLists = ownList + "set y to x\n" + ownList;
const std::string twoOwnRecords = ownRecord + "set y to x\n" + ownRecord;

INSTANTIATE_TEST_SUITE_P(
    OwnValues, BoundsTest,
    testing::Values(
        Row{"asText", ownList + "x as text", overflow}, Row{"compared", twoOwnLists + "x = y", overflow},
        Row{"comparedWithItself", ownList + "x = x", "true"},
        Row{"recordsCompared", twoOwnRecords + "x = y", overflow},
        Row{"recordAsText", ownRecord + "try\nx as text\non error number n\nn\nend", "-1700"},
        Row{"recordAsList", ownRecord + "count (x as list)", "2"},
        Row{"copied", ownList + "copy x to y\nset item 1 of y to 2\nitem 1 of item 2 of item 2 of y", "2"},
        Row{"recordCopied", ownRecord + "copy x to y\nset a of y to 2\na of b of b of y", "2"},
        Row{"recordContains", twoOwnRecords + "x contains y", overflow},
        Row{"held", "set x to {1}\nset item 1 of x to a reference to item 1 of x\ncontents of item 1 of x",
            overflow},
        Row{"inEachOther", "set x to {}\nset y to {x}\nset end of x to y\ncopy y to z\ncount z", "1"},
        Row{"many", "repeat 5000 times\nset x to {1}\nset end of x to x\nend\n1", "1"}),
    nameOf);

/// As many of them, numbered, with commas between.
std::string listed(int count, const std::string& name, const std::string& behind = "") {
    std::string text;
    for (int i = 0; i < count; ++i) {
        if (i > 0) text += ", ";
        text.append(name).append(std::to_string(i)).append(behind);
    }
    return text;
}

const std::string tooManyParameters = "-2741 Expected at most 1000 parameters but found more.";

INSTANTIATE_TEST_SUITE_P(
    Parameters, BoundsTest,
    testing::Values(Row{"asManyAsMayBe",
                        "on f(" + listed(1000, "a") + ")\na999\nend\nf(" + listed(1000, "") + ")", "999"},
                    Row{"tooMany", "on f(" + listed(1001, "a") + ")\nend", tooManyParameters},
                    Row{"tooManyLabelled", "on f given " + listed(1001, "l", ":x") + "\nend",
                        tooManyParameters},
                    Row{"tooManyArguments", "f(" + listed(1001, "") + ")", tooManyParameters},
                    Row{"namesInAPattern", "on f({" + listed(20000, "a") + "})\na1\nend\nf({7, 8, 9})",
                        "-1728 Can’t get item 4 of {7, 8, 9}."},
                    Row{"namesInAPatternTwice", "on f({" + listed(20000, "a") + ", a5})\nend",
                        "-2750 The a5 parameter is specified more than once."}),
    nameOf);

/// How deep handlers call each other, and how large texts and lists become.
INSTANTIATE_TEST_SUITE_P(
    Growth, BoundsTest,
    testing::Values(Row{"recursion", "on f()\nf()\nend\nf()", overflow},
                    Row{"recursionInTell", "on f()\ntell me to f()\nend\nf()", overflow},
                    Row{"recursionInTry",
                        "on f()\ntry\nf()\non error m number n\nerror m number n\nend\nend\nf()", overflow},
                    Row{"recursionBelowTheBound",
                        "on f(n)\nif n = 0 then return 0\nreturn 1 + f(n - 1)\nend\nf(900)", "900"},
                    Row{"recursionWithManyVariables",
                        "on f()\n" +
                            [] {
                                std::string text;
                                for (int i = 0; i < 5000; ++i)
                                    text += "set v" + std::to_string(i) + " to 1\n";
                                return text;
                            }() +
                            "f()\nend\nf()",
                        overflow},
                    Row{"text", "set t to \"a\"\nrepeat\nset t to t & t\nend", outOfMemory},
                    Row{"list", "set l to {1}\nrepeat\nset l to l & l\nend", tooManyItems},
                    Row{"listAtItsEnd", "set l to {}\nrepeat\nset end of l to 1\nend", tooManyItems},
                    Row{"textsInAList",
                        "set l to {}\nset t to \"a\"\nrepeat 23 times\nset t to t & t\nend\n"
                        "repeat\nset end of l to t & \"b\"\nend",
                        outOfMemory},
                    Row{"idsOfAText", "set t to \"a\"\nrepeat 20 times\nset t to t & t\nend\nid of t",
                        tooManyItems},
                    Row{"joined",
                        "set l to {}\nrepeat 1000 times\nset end of l to \"0123456789\"\nend\n"
                        "repeat 12 times\nset l to {l, l}\nend\nl as text",
                        outOfMemory},
                    Row{"compared",
                        "set l to {}\nrepeat 22 times\nset l to {l, l}\nend\n"
                        "set m to {}\nrepeat 22 times\nset m to {m, m}\nend\nl = m",
                        "-1712 AppleEvent timed out."},
                    Row{"number", "set n to 2\nrepeat\nset n to n * n\nend",
                        "-2702 The result of a numeric operation was too large."}),
    nameOf);

/// The user asks to stop.
script::RunEnd endOfCancelled(const std::string& source) {
    const auto program = script::compile(source);
    RecordingInjector injector;
    injector.cancelled = true;
    script::SilentDesktop desktop;
    script::NoDialogs dialogs;
    return script::run(program.value(), {injector, desktop, dialogs}).end;
}

TEST(CancelBoundsTest, aScriptWithoutLoopsIsStoppedToo) {
    EXPECT_EQ(endOfCancelled(times(10000, "set x to 1\n")), script::RunEnd::cancelled);
}

/// Wherever in the loop the question falls.
TEST(CancelBoundsTest, errorsThatAreCaughtDoNotHideTheWishToStop) {
    for (std::size_t lines = 0; lines < 20; ++lines) {
        SCOPED_TRACE(lines);
        const std::string body = times(lines, "get 1\n");
        EXPECT_EQ(endOfCancelled("repeat\ntry\n" + body + "error 5\nend\nend\n"), script::RunEnd::cancelled);
    }
}

TEST(CancelBoundsTest, aTryDoesNotCatchTheWishToStop) {
    EXPECT_EQ(endOfCancelled("repeat\ntry\nrepeat\nend\nend\nend\n"), script::RunEnd::cancelled);
}

}  // namespace

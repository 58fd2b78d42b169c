// SPDX-License-Identifier: MIT
//
// What errors say beside the language's own words.
#include <gtest/gtest.h>

#include "platform/Sentence.h"
#include "script/SourceRow.h"
#include "script/Traced.h"

namespace {

using Row = SourceRow;

std::string translated(const char* context, const char* english) {
    return std::string(context) + ": " + english;
}

class HintsTest : public testing::TestWithParam<Row> {
  protected:
    ~HintsTest() override { translateSentencesBy(nullptr); }
};

TEST_P(HintsTest, helpsWithAUsualSlip) { EXPECT_EQ(traced(GetParam().source).error.hint, GetParam().result); }

TEST_P(HintsTest, saysItInTheLanguageOfTheUserAndLeavesTheMessageToScripts) {
    const std::string message = traced(GetParam().source).error.message.english();
    translateSentencesBy(translated);
    const script::ScriptError error = traced(GetParam().source).error;
    EXPECT_EQ(error.message.english(), message);
    EXPECT_EQ(error.hint, GetParam().result.empty() ? "" : "Hints: " + GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(
    Slips, HintsTest,
    testing::Values(
        Row{"curly quotes", "set x to “a”", "Put straight quotes (\") in place of the curly ones."},
        Row{"single quotes", "set x to 'a'", "Text stands between straight double quotes (\")."},
        Row{"a forgotten end", "tell app \"System Events\"\nrepeat 2 times\nkey code 1\nend tell",
            "The block that begins in line 2 has no “end” of its own."},
        Row{"a forgotten end at the end", "if true then\nrepeat\nend repeat\n",
            "The block that begins in line 1 has no “end” of its own."},
        Row{"an end of another block", "repeat\nend tell\nend repeat",
            "No “tell” is open here; a “tell … to” in one line has no “end tell”."},
        Row{"keystroke outside", R"(keystroke "a")",
            R"(The keyboard commands stand inside “tell application "System Events"” … “end tell”.)"},
        Row{"key code outside", "\tkey code 5",
            R"(The keyboard commands stand inside “tell application "System Events"” … “end tell”.)"},
        Row{"else in one line", "if true then 1 else 2",
            "An “if” in one line has no “else”; write it in lines, with “end if”."},
        Row{"another language's unequal", "1 != 2", "“Not equal” is written ≠ or /=."},
        Row{"another language's equal", "1 == 2", "“Equal” is written with one =."},
        Row{"another language's assignment", "set x = 5", "A variable is set with “to”: set x to 5."},
        Row{"semicolons", "delay 1; delay 2", "Each statement has a line of its own."},
        Row{"an unknown class", "5 as banana",
            "Behind “as” stands a class: text, integer, real, number, boolean, list, record, date."},
        Row{"my forgotten", "on f()\nend f\ntell app \"System Events\" to f()",
            "Inside “tell” the script’s own handlers are called with “my”: my f(…)."},
        Row{"what Return types as a key code", "tell app \"System Events\" to key code return",
            "The key has a number: key code 36; “keyrill-script keys” prints all."},
        Row{"a name in bars that is never set", "log |a \\| \\\\ b|",
            "A variable is set before it is used: set |a \\| \\\\ b| to … Text stands between straight "
            "quotes: "
            "\"a | \\\\ b\"."},
        Row{"a name with quotes that is never set", "log |say \"hi\"|",
            "A variable is set before it is used: set |say \"hi\"| to … Text stands between straight quotes: "
            "\"say \\\"hi\\\"\"."},
        Row{"a word of the language in bars", "log |repeat|",
            "A variable is set before it is used: set |repeat| to … Text stands between straight quotes: "
            "\"repeat\"."},
        Row{"a constant of the language in bars", "log |Tab|",
            "A variable is set before it is used: set |Tab| to … Text stands between straight quotes: "
            "\"Tab\"."},
        Row{"a name in bars that another handler needs",
            "set |my text| to 1\non f()\nlog |my text|\nend f\nf()",
            "A handler has variables of its own; to share this one write there: global |my text|."},
        Row{"a slip in a name in bars", "set |my text| to 1\nlog |my txet|", "Did you mean |my text|?"},
        Row{"a handler in bars that is not there", "|my text|()",
            "The script has no handler of that name: on |my text|(…) … end |my text|."},
        Row{"a handler in bars inside of tell",
            "on |my text|()\nend\ntell app \"System Events\" to |my text|()",
            "Inside “tell” the script’s own handlers are called with “my”: my |my text|(…)."},
        Row{"a sign that nobody sees", "delay\u200B 1", "A sign that nobody sees stands here; delete it."},
        Row{"a sign that ends texts elsewhere", std::string("delay \0", 7),
            "A sign that nobody sees stands here; delete it."},
        Row{"nothing to say", R"(error "x")", ""}));

class WarningsTest : public testing::Test {
  protected:
    WarningsTest() { translateSentencesBy(translated); }
    ~WarningsTest() override { translateSentencesBy(nullptr); }
};

TEST_F(WarningsTest, areInTheLanguageOfTheUser) {
    EXPECT_EQ(
        traced("delay 5000").warnings,
        std::vector<std::string>{"1:7 Warnings: “delay” counts seconds; 5000 milliseconds are: delay 5.0."});
}

TEST_F(WarningsTest, ofANameThatIsNeverSetSayWhatWasMeant) {
    const Traced run = traced("log hullo");
    EXPECT_EQ(run.warnings, std::vector<std::string>{
                                "1:5 Warnings: The variable hullo is never set. Hints: Text stands between "
                                "straight quotes: \"hullo\"."});
    EXPECT_EQ(run.error.message.english(), "The variable hullo is not defined.");
    EXPECT_EQ(
        run.error.hint,
        "Hints: A variable is set before it is used: set hullo to … Text stands between straight quotes: "
        "\"hullo\".");
}

}  // namespace

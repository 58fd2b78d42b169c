// SPDX-License-Identifier: MIT
//
// What errors and warnings say of words that nobody writes: their beginning, and that there is more.
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "platform/Utf8.h"
#include "script/SourceRow.h"
#include "script/Traced.h"

namespace {

constexpr std::size_t readable = 800;

std::string times(std::size_t count, const std::string& piece) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) text += piece;
    return text;
}

/// The source with the word in the place of each W.
std::string withWord(const std::string& source, const std::string& word) {
    std::string text;
    for (const char c : source) text += c == 'W' ? word : std::string(1, c);
    return text;
}

/// Of the error, with its hint, and the warnings.
std::vector<std::string> saidOf(const std::string& source) {
    const Traced run = traced(source);
    std::vector<std::string> all = run.warnings;
    all.push_back(run.error.message.text());
    all.push_back(run.error.hint.text());
    return all;
}

/// `result` is what a short word gives, as "NUMBER MESSAGE".
class LongWordsTest : public testing::TestWithParam<SourceRow> {};

TEST_P(LongWordsTest, areNamedWholeWhereTheyAreShort) {
    const script::ScriptError error = traced(withWord(GetParam().source, "w")).error;
    EXPECT_EQ(std::to_string(error.number) + " " + error.message.text(), GetParam().result);
}

TEST_P(LongWordsTest, areShortenedSoThatPeopleCanReadWhatIsSaid) {
    for (const std::string letter : {"w", "日"}) {
        const std::string letters = times(100000, letter);
        const std::string word = letter == "w" ? letters : "|é" + letters + "|";
        bool isShortened = false;
        for (const std::string& said : saidOf(withWord(GetParam().source, word))) {
            EXPECT_LT(said.size(), readable) << said.substr(0, readable);
            EXPECT_FALSE(invalidUtf8(said));
            isShortened = isShortened || said.find(letter + "…") != std::string::npos;
        }
        EXPECT_TRUE(isShortened);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Words, LongWordsTest,
    testing::Values(
        SourceRow{"a variable that is not set", "log W", "-2753 The variable w is not defined."},
        SourceRow{"a variable that is typed", "tell app \"System Events\" to keystroke W",
                  "-2753 The variable w is not defined."},
        SourceRow{"a variable of another handler", "set W to 1\non f()\nlog W\nset W to 2\nend f\nf()",
                  "-2753 The variable w is not defined."},
        SourceRow{"a variable that is compared", "W = 5", "-2753 The variable w is not defined."},
        SourceRow{"an application", "tell W\nactivate\nend tell", "-2753 The variable w is not defined."},
        SourceRow{"a handler without parentheses", "on W()\nend\nlog W",
                  "-2753 The variable w is not defined."},
        SourceRow{"a dialog that is typed",
                  "set W to display dialog \"x\"\ntell app \"System Events\" to keystroke W",
                  "-1700 Can’t make {button returned:\"OK\"} into type text."},
        SourceRow{"a chosen item that is compared", "set W to choose from list {1}\nW = \"a\"\nerror \"x\"",
                  "-2700 x"},
        SourceRow{"a handler that is not there", "W()", "-1708 «script» doesn’t understand the “w” message."},
        SourceRow{"a handler inside of tell", "on W()\nend\ntell app \"System Events\" to W()",
                  "-1708 System Events got an error: application \"System Events\" doesn’t understand the "
                  "“w” message."},
        SourceRow{"a handler with other parameters", "on W(a)\nend\nW()",
                  "-1721 {} doesn’t match the parameters {a} for w."},
        SourceRow{"a parameter", "on f(W)\nend\nf()", "-1721 {} doesn’t match the parameters {w} for f."},
        SourceRow{"a handler with other labels", "on W given l:x\nend\nW given m:1",
                  "-1701 Some parameter is missing for w."},
        SourceRow{"a handler given twice", "on W()\nend\non W()\nend",
                  "-2752 The w handler is specified more than once."},
        SourceRow{"a property given twice", "property W : 1\nproperty W : 2",
                  "-2751 The w property is specified more than once."},
        SourceRow{"a field given twice", "{W:1, W:2}", "-2751 The w property is specified more than once."},
        SourceRow{"a parameter given twice", "on f(W, W)\nend",
                  "-2750 The w parameter is specified more than once."},
        SourceRow{"a name declared in two ways", "on f()\nglobal W\nlocal W\nend",
                  "-2754 Can’t declare w as both a local and global variable."},
        SourceRow{"a field that is not there", "W of {a:1}", "-1728 Can’t get w of {a:1}."},
        SourceRow{"a field that cannot be set", "set W of {a:1} to 5", "-10006 Can’t set w of {a:1} to 5."},
        SourceRow{"a property of the script", "W of me", "-1728 Can’t get w."},
        SourceRow{"a property of the script that is set", "set W of me to 5", "-10006 Can’t set w to 5."},
        SourceRow{"a record that is no number", "1 + {W:1}", "-1700 Can’t make {w:1} into type number."},
        SourceRow{"the end of a handler", "on W()\nend foo", "-2741 Expected “end w” but found identifier."},
        SourceRow{"words without quotes", "tell app \"System Events\" to keystroke hello W",
                  "-2741 Expected end of line but found identifier."}));

TEST(LongTextTest, isShortenedWhereAMessageQuotesIt) {
    const std::string text = '"' + std::string(3000000, 'x') + '"';
    for (const std::string& source :
         {text + " + 1", "delay " + text, "item 1 of (" + text + " as date)",
          "tell app \"System Events\" to key code " + text, "tell app " + text + " to f()"}) {
        const Traced run = traced(source);
        EXPECT_NE(run.phase, Traced::Phase::none);
        for (const std::string& said : saidOf(source)) EXPECT_LT(said.size(), readable);
        EXPECT_NE(run.error.message.text().find("xxx…"), std::string::npos) << source.substr(0, 40);
    }
}

TEST(LongLettersTest, areShortenedInTheirHint) {
    const Traced run = traced("set " + times(1000000, "é") + " to 1");
    EXPECT_EQ(run.error.number, -2741);
    EXPECT_LT(run.error.hint.text().size(), readable);
    EXPECT_FALSE(invalidUtf8(run.error.hint.text()));
    EXPECT_NE(run.error.hint.text().find("é…|"), std::string::npos);
}

}  // namespace

// SPDX-License-Identifier: MIT
#include "platform/script/source/Lexer.h"

#include <gtest/gtest.h>

#include "script/Printed.h"
#include "script/SourceRow.h"

namespace {

using Row = SourceRow;

class LexerTest : public testing::TestWithParam<Row> {};

TEST_P(LexerTest, cutsIntoTokens) { EXPECT_EQ(printedTokens(GetParam().source), GetParam().result); }

INSTANTIATE_TEST_SUITE_P(
    Blanks, LexerTest,
    testing::Values(
        Row{"nothing", "", "END"}, Row{"blanks and tabs mean nothing", " \t a \t b ", "a b END"},
        Row{"no-break space is a blank", "a\u00A0b", "a b END"},
        Row{"a byte order mark before the script is nothing", "\uFEFFa", "a END"},
        Row{"a byte order mark inside is unknown", "a\uFEFF", "a <unknown \uFEFF> END"},
        Row{"LF, CR and CR LF are one line end each", "a\nb\rc\r\nd\r\re", "a NL b NL c NL d NL NL e END"},
        Row{"a zero byte is unknown", std::string("a\0b", 3), std::string("a <unknown \0> b END", 19)}));

INSTANTIATE_TEST_SUITE_P(
    Comments, LexerTest,
    testing::Values(Row{"to the end of the line", "a -- b\nc # d\re", "a NL c NL e END"},
                    Row{"two minus signs are a comment, whatever stands around", "3--1", "3 END"},
                    Row{"a first line for a shell", "#!/usr/bin/env x\na", "NL a END"},
                    Row{"blocks nest", "a (* b (* c *) d *) e", "a e END"},
                    Row{"blocks reach over lines", "a (* b\nc *) d", "a d END"},
                    Row{"a quote inside a comment opens nothing", "-- don't \"\na (* \" *) b", "NL a b END"},
                    Row{"comment signs inside a text open nothing", R"("-- (* #" a)", R"("-- (* #" a END)"},
                    Row{"other comments inside a block mean nothing", "(* -- *) a", "a END"},
                    Row{"a block that never ends", "a (* b (* c *)", "a <open comment> END"}));

INSTANTIATE_TEST_SUITE_P(Continuation, LexerTest,
                         testing::Values(Row{"joins two lines", "a ¬\nb", "a b END"},
                                         Row{"takes CR LF as one line end", "a ¬\r\nb", "a b END"},
                                         Row{"may have blanks and a comment after it", "a ¬ \t -- c\nb",
                                             "a b END"},
                                         Row{"joins one line only", "a ¬\n\nb", "a NL b END"},
                                         Row{"may end the script", "a ¬", "a END"},
                                         Row{"needs the line end", "a ¬ b", "a <stray continuation> b END"},
                                         Row{"is a character inside a text", "\"a ¬\n\"", "\"a ¬\n\" END"}));

INSTANTIATE_TEST_SUITE_P(Literals, LexerTest,
                         testing::Values(Row{"numbers", "0 36 1. .5 0.01", "0 36 1. .5 0.01 END"},
                                         Row{"exponents", "1e-05 5E-1 1.5e+1 2e3",
                                             "1e-05 5E-1 1.5e+1 2e3 END"},
                                         Row{"an exponent needs digits", "1e 1e+", "1 e 1 e + END"},
                                         Row{"the sign is no part of a number", "-7+8", "- 7 + 8 END"},
                                         Row{"a name may follow a number", "2x", "2 x END"},
                                         Row{"a point alone is unknown", "a . b", "a <unknown .> b END"},
                                         Row{"text with escapes", R"("a\"b\\" c)", R"("a\"b\\" c END)"},
                                         Row{"text over lines", "\"a\nb\"", "\"a\nb\" END"},
                                         Row{"a text that never ends", R"(a "b\")", "a <open text> END"},
                                         Row{"a text that ends in a backslash", "\"\\", "<open text> END"}));

INSTANTIATE_TEST_SUITE_P(
    NamesAndSymbols, LexerTest,
    testing::Values(Row{"names", "a _b c1 D_2", "a _b c1 D_2 END"},
                    Row{"names in bars", R"(|a b| |x\|y|)", R"(|a b| |x\|y| END)"},
                    Row{"a bar alone is unknown", "|a\nb", "<unknown |> a NL b END"},
                    Row{"symbols", "(){},:&+-*/^=<>", "( ) { } , : & + - * / ^ = < > END"},
                    Row{"comparisons of two characters", "<= >= /= ≤ ≥ ≠", "<= >= /= ≤ ≥ ≠ END"},
                    Row{"division sign and possessive", "6 ÷ x's y", "6 ÷ x 's y END"},
                    Row{"a letter outside ASCII is unknown", "é", "<unknown é> END"},
                    Row{"a character of four bytes is one", "😀a", "<unknown 😀> a END"},
                    Row{"curly quotes are unknown", "“a”", "<unknown “> a <unknown ”> END"},
                    Row{"semicolon and exclamation mark are unknown", "; !", "<unknown ;> <unknown !> END"},
                    Row{"raw codes", "«event» 《》",
                        "<raw code> event <raw code> <raw code> <raw code> END"}));

}  // namespace

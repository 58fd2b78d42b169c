// SPDX-License-Identifier: MIT
#include "platform/script/syntax/Parser.h"

#include <gtest/gtest.h>

#include "script/Printed.h"
#include "script/SourceRow.h"

namespace {

using Row = SourceRow;

/// Sources as they stand.
class ParserTest : public testing::TestWithParam<Row> {};

TEST_P(ParserTest, readsIntoATree) { EXPECT_EQ(printedTree(GetParam().source), GetParam().result); }

/// One line inside a tell block.
class StatementTest : public testing::TestWithParam<Row> {};

TEST_P(StatementTest, readsIntoATree) {
    const std::string source = "tell application \"System Events\"\n" + GetParam().source + "\nend tell\n";
    EXPECT_EQ(printedTree(source), "(tell system-events System Events " + GetParam().result + ")");
}

INSTANTIATE_TEST_SUITE_P(
    Tell, ParserTest,
    testing::Values(Row{"nothing", "", ""}, Row{"blank lines and comments", "\n\n-- a\n(* b *)\n", ""},
                    Row{"a block", "tell application \"System Events\"\n\tdelay 1\nend tell\n",
                        "(tell system-events System Events (delay 1))"},
                    Row{"one line", R"(tell app "System Events" to keystroke "a")",
                        R"((tell system-events System Events (keystroke "a")))"},
                    Row{"the word after end may be left out", "tell app \"System Events\"\nend",
                        "(tell system-events System Events)"},
                    Row{"case never matters",
                        "TELL Application \"system events\"\nKEY CODE 1 Using {COMMAND DOWN}\nEND Tell",
                        "(tell system-events system events (key-code 1 (list command-down)))"},
                    Row{"by identifier", R"(tell application id "com.apple.SystemEvents" to keystroke "a")",
                        R"((tell system-events com.apple.SystemEvents (keystroke "a")))"},
                    Row{"a process inside",
                        "tell app \"System Events\"\ntell process \"P\"\nkey code 1\nend tell\nend tell",
                        R"((tell system-events System Events (tell (process "P") (key-code 1))))"},
                    Row{"a process in one line",
                        R"(tell app "System Events" to tell application process "P" to key code 1)",
                        R"((tell system-events System Events (tell (process "P") (key-code 1))))"},
                    Row{"another application", "tell application \"Other\"\ndelay\nend tell",
                        "(tell application Other (delay))"},
                    Row{"the is filler", "tell the the application \"System Events\"\nkeystroke the tab\nend",
                        "(tell system-events System Events (keystroke \"\t\"))"},
                    Row{"terms are names outside", "keystroke", "(evaluate name keystroke)"},
                    Row{"terms are names after the block", "tell app \"System Events\"\nend\nshift",
                        "(tell system-events System Events) (evaluate name shift)"}));

INSTANTIATE_TEST_SUITE_P(
    Commands, StatementTest,
    testing::Values(
        Row{"key code", "key code 36", "(key-code 36)"},
        Row{"key code in parentheses without modifiers", "\tkey code (36) using {}", "(key-code 36 (list))"},
        Row{"key code with modifiers",
            "key code 0 using {command down, shift down, option down, control down}",
            "(key-code 0 (list command-down shift-down option-down control-down))"},
        Row{"one modifier without braces", "key code 0 using shift down", "(key-code 0 shift-down)"},
        Row{"a modifier without down", "key code 0 using {command}", "(key-code 0 (list command))"},
        Row{"a list of codes", "key code {0, 11} using command down", "(key-code (list 0 11) command-down)"},
        Row{"free blanks", "key  code\t1 using{command  down}", "(key-code 1 (list command-down))"},
        Row{"joined lines", "key code 1 ¬  \n\t\tusing {command down}", "(key-code 1 (list command-down))"},
        Row{"keystroke", R"(keystroke "a\tb" using {shift down})", "(keystroke \"a\tb\" (list shift-down))"},
        Row{"keystroke of a number", "keystroke 1", "(keystroke 1)"},
        Row{"keystroke of a constant", "keystroke return using command down",
            "(keystroke \"\r\" command-down)"},
        Row{"key down of a modifier key", "key down shift", "(key-down shift)"},
        Row{"key up of a list", "key up {shift down, control}", "(key-up (list shift-down control))"},
        Row{"key down of a code", "key down 49", "(key-down 49)"},
        Row{"delay", "delay 0.5", "(delay real 0.5)"}, Row{"delay without a time", "delay", "(delay)"}));

INSTANTIATE_TEST_SUITE_P(
    Loops, ParserTest,
    testing::Values(Row{"a count", "repeat 2 times\ndelay\nend repeat", "(repeat-times 2 (delay))"},
                    Row{"times may be left out", "repeat 2\nend", "(repeat-times 2)"},
                    Row{"for ever", "repeat\nexit repeat\nend repeat", "(repeat (exit))"},
                    Row{"one in another", "repeat 2 times\nrepeat\nexit\nend\nexit repeat\nend",
                        "(repeat-times 2 (repeat (exit)) (exit))"}));

INSTANTIATE_TEST_SUITE_P(
    Expressions, StatementTest,
    testing::Values(Row{"times binds tighter than plus", "delay 1 + 2 * 3", "(delay (+ 1 (* 2 3)))"},
                    Row{"parentheses come first", "delay (1 + 2) * 3", "(delay (* (+ 1 2) 3))"},
                    Row{"minus groups from the left", "delay 2 - 1 - 1", "(delay (- (- 2 1) 1))"},
                    Row{"power groups from the right", "delay 2 ^ 3 ^ 2", "(delay (^ 2 (^ 3 2)))"},
                    Row{"a sign binds tighter than power", "delay -2 ^ 2", "(delay (^ (negate 2) 2))"},
                    Row{"a sign after an operator", "delay 2 * -3 + 1", "(delay (+ (* 2 (negate 3)) 1))"},
                    Row{"signs in a row", "delay - - + 3", "(delay (negate (negate 3)))"},
                    Row{"joining is the loosest", R"(keystroke 1 + 2 & 3 * 4 & "a")",
                        R"((keystroke (& (& (+ 1 2) (* 3 4)) "a")))"},
                    Row{"operators that are words", "delay 7 div 2 mod 3", "(delay (mod (div 7 2) 3))"},
                    Row{"the division sign", "delay 6 ÷ 4 / 2", "(delay (/ (/ 6 4) 2))"},
                    Row{"lists in lists", R"({1, {}, {"a", -1}})",
                        R"((evaluate (list 1 (list) (list "a" (negate 1)))))"},
                    Row{"the largest whole number", "delay 536870911", "(delay 536870911)"},
                    Row{"beyond it numbers are reals", "delay 536870912", "(delay real 5.36871e+08)"},
                    Row{"a whole exponent form is real", "delay 1e2", "(delay real 100)"},
                    Row{"names", "keystroke foo & |b c|", "(keystroke (& name foo name b c))"}));

INSTANTIATE_TEST_SUITE_P(
    Statements, ParserTest,
    testing::Values(
        Row{"set", "set x to 1", "(set name x 1)"},
        Row{"a pattern", "set {a, b} to c", "(set (list name a name b) name c)"},
        Row{"copy", "copy 1 to x", "(copy name x 1)"},
        Row{"if", "if a then\nb\nelse if c\nd\nelse\ne\nend",
            "(if name a (do (evaluate name b)) name c (do (evaluate name d)) (do (evaluate name e)))"},
        Row{"if in one line", "if a then return 1", "(if name a (do (return 1)))"},
        Row{"while", "repeat while a\nend", "(repeat-while name a)"},
        Row{"until", "repeat until a\nend", "(repeat-until name a)"},
        Row{"a range", "repeat with i from 1 to 9 by 2\nend", "(repeat-from i 1 9 2)"},
        Row{"a list", "repeat with x in {1}\nend", "(repeat-in x (list 1))"},
        Row{"try", "try\na\non error m number n\nb\nend",
            "(try (do (evaluate name a)) (on-error (part name m) (part name n) (evaluate name b)))"},
        Row{"error", R"(error "a" number 5)", R"((error (part "a") (part 5)))"},
        Row{"a handler", "on f(a, b)\nreturn a\nend f",
            "(handler f (parameter name a) (parameter name b) (return name a))"},
        Row{"a property", "property p : 5", "(property p 5)"},
        Row{"names for the whole script", "global a, b", "(global name a name b)"},
        Row{"considering", "considering case\na\nend", "(considering (evaluate name a))"},
        Row{"timeout", "with timeout of 5 seconds\na\nend timeout", "(timeout 5 (evaluate name a))"}));

INSTANTIATE_TEST_SUITE_P(
    Terms, ParserTest,
    testing::Values(
        Row{"a call", "f(1, x)", "(evaluate (call f 1 name x))"},
        Row{"a call of the script's own", "my f(1)", "(evaluate (call-to me (call f 1)))"},
        Row{"an element", "item 2 of L", "(evaluate (item 2 name L))"},
        Row{"a range of elements", "items 2 thru 3 of L", "(evaluate (range-item 2 3 name L))"},
        Row{"an ordinal", "last word of t", "(evaluate (word (negate 1) name t))"},
        Row{"a possessive", "x's item 2", "(evaluate (item 2 name x))"},
        Row{"of groups from the right", "a of b of c", "(evaluate (property-of a (property-of b name c)))"},
        Row{"as goes on behind its class", R"(1 + 2 as text & "x")",
            R"((evaluate (& (as text (+ 1 2)) "x")))"},
        Row{"joining binds tighter than as", R"("x" & n as text)", R"((evaluate (as text (& "x" name n))))"},
        Row{"not is looser than equal", "not a = b", "(evaluate (not (= name a name b)))"},
        Row{"and is tighter than or", "a or b and c", "(evaluate (or name a (and name b name c)))"},
        Row{"operators of several words", "a is not in b", "(evaluate (not (in name a name b)))"},
        Row{"the longest operator counts", "a is less than or equal to b", "(evaluate (<= name a name b))"},
        Row{"a command's parameters", "random number from 1 to 6", "(random-number 1 6)"},
        Row{"a record", "{a:1, b:x}", "(evaluate (record (field a 1) (field b name x)))"}));

}  // namespace

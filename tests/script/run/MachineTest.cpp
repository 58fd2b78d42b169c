// SPDX-License-Identifier: MIT
#include "platform/script/run/Machine.h"

#include <gtest/gtest.h>

#include "platform/script/code/Compiler.h"
#include "platform/script/run/MachineServices.h"
#include "script/RecordingInjector.h"
#include "script/Traced.h"

namespace {

using Lines = std::vector<std::string>;

struct Row {
    const char* what;
    std::string lines;
    std::string events;
};

std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.what; }

/// Lines inside the tell block, and what they do.
class MachineTest : public testing::TestWithParam<Row> {};

TEST_P(MachineTest, does) { EXPECT_EQ(told(GetParam().lines), GetParam().events); }

INSTANTIATE_TEST_SUITE_P(
    KeyCode, MachineTest,
    testing::Values(
        Row{"a key", "key code 36", "[\"key\",36,[]]\n"},
        Row{"modifiers in their order, each once", "key code 0 using {shift down, command down, shift down}",
            "[\"key\",0,[\"command\",\"shift\"]]\n"},
        Row{"a list of keys", "key code {0, 11} using option down",
            "[\"key\",0,[\"option\"]]\n[\"key\",11,[\"option\"]]\n"},
        Row{"a real is rounded", "key code 35.5", "[\"key\",36,[]]\n"},
        Row{"text that reads as a number", "key code \" 36 \"", "[\"key\",36,[]]\n"},
        Row{"other text", "key code {1, \"abc\"}", "-1700 Can’t make \"abc\" into type integer."},
        Row{"negative", "key code -1", "-1700 Can’t make -1 into type key code."},
        Row{"the largest", "key code 65536", "-1700 Can’t make 65536 into type key code."},
        Row{"beyond 32 bits", "key code 4294967295", "-1700 Can’t make 4.294967295E+9 into type integer."},
        Row{"a code without a key", "key code {66, 65535, 1}", "[\"key\",1,[]]\n"},
        Row{"an extension", "key code 4279", "[\"key\",4279,[]]\n"},
        Row{"the power key", "key code 127",
            "-10000 System Events got an error: the power key is never pressed by a script."},
        Row{"the power key by its extension code", "key code 4212",
            "-10000 System Events got an error: the power key is never pressed by a script."},
        Row{"a modifier that is none", "key code 1 using {\"shift\"}",
            "-1700 Can’t make \"shift\" into type modifier."}));

INSTANTIATE_TEST_SUITE_P(
    Keystroke, MachineTest,
    testing::Values(Row{"text", "keystroke \"héllo\"", "[\"text\",\"héllo\",[]]\n"},
                    Row{"with modifiers", "keystroke \"ab\" using command down",
                        "[\"text\",\"ab\",[\"command\"]]\n"},
                    Row{"empty text gives nothing", "keystroke \"\"", ""},
                    Row{"an integer", "keystroke 10", "[\"text\",\"10\",[]]\n"},
                    Row{"a real", "keystroke 0.5", "[\"text\",\"0.5\",[]]\n"},
                    Row{"a list", "keystroke {1, \"a\", {tab}}", "[\"text\",\"1a\\t\",[]]\n"},
                    Row{"control characters", "keystroke \"\x01\"", "[\"text\",\"\\u0001\",[]]\n"},
                    Row{"an undefined name", "keystroke enter", "-2753 The variable enter is not defined."}));

INSTANTIATE_TEST_SUITE_P(Holding, MachineTest,
                         testing::Values(Row{"a modifier key", "key down shift\nkey up shift",
                                             "[\"keydown\",\"shift\",[]]\n[\"keyup\",\"shift\",[]]\n"},
                                         Row{"modifiers that are down", "key down {control down, option}",
                                             "[\"keydown\",\"control\",[]]\n[\"keydown\",\"option\",[]]\n"},
                                         Row{"text", "key down \"w\"", "[\"keydown\",\"w\",[]]\n"},
                                         Row{"a code", "key up 49", "[\"keyup\",49,[]]\n"},
                                         Row{"a code without a key", "key down 66", ""},
                                         Row{"a negative code", "key down -3",
                                             "-1700 Can’t make -3 into type key code."}));

INSTANTIATE_TEST_SUITE_P(
    Delay, MachineTest,
    testing::Values(
        Row{"as asked", "delay 0.01\ndelay 2\ndelay 1e-05\ndelay 1.23457e+06\ndelay 1e300",
            "[\"delay\",0.01]\n[\"delay\",2]\n[\"delay\",1e-05]\n[\"delay\",1234570]\n[\"delay\",1e+300]\n"},
        Row{"without a time", "delay", "[\"delay\",0]\n"}, Row{"negative", "delay -1", "[\"delay\",-1]\n"},
        Row{"numeric text", "delay \"0.5\"", "[\"delay\",0.5]\n"},
        Row{"text with a comma", "delay \"0,5\"", "-1700 Can’t make \"0,5\" into type number."},
        Row{"a constant", "delay command down", "-1700 Can’t make command down into type number."},
        Row{"a list of one", "delay {3}", "[\"delay\",3]\n"},
        Row{"a list of two", "delay {3, \"a\"}", "-1700 Can’t make {3, \"a\"} into type number."}));

INSTANTIATE_TEST_SUITE_P(
    Repeat, MachineTest,
    testing::Values(
        Row{"a count", "repeat 2 times\nkey code 1\nend", "[\"key\",1,[]]\n[\"key\",1,[]]\n"},
        Row{"none", "repeat 0 times\nkey code 1\nend\nrepeat -3 times\nkey code 1\nend", ""},
        Row{"a count as text, rounded", "repeat \"1.6\" times\nkey code 1\nend",
            "[\"key\",1,[]]\n[\"key\",1,[]]\n"},
        Row{"a count that is none", "repeat \"x\" times\nend", "-1700 Can’t make \"x\" into type integer."},
        Row{"leaving a loop for ever", "repeat\nkey code 1\nexit repeat\nkey code 2\nend\nkey code 3",
            "[\"key\",1,[]]\n[\"key\",3,[]]\n"},
        Row{"leaving the inner loop", "repeat 2 times\nrepeat 5 times\nkey code 1\nexit repeat\nend\nend",
            "[\"key\",1,[]]\n[\"key\",1,[]]\n"},
        Row{"leaving both", "repeat 2 times\nrepeat\nexit repeat\nend\nkey code 1\nexit repeat\nend",
            "[\"key\",1,[]]\n"}));

INSTANTIATE_TEST_SUITE_P(
    Expressions, MachineTest,
    testing::Values(Row{"arithmetic", "delay 1 + 2 * 3 - 4 / 2", "[\"delay\",5]\n"},
                    Row{"joining", "keystroke \"a\" & return & 1 & \"b\"", "[\"text\",\"a\\r1b\",[]]\n"},
                    Row{"joining numbers makes a list", "keystroke 1 & 2", "[\"text\",\"12\",[]]\n"},
                    Row{"division by zero", "delay 1 / 0", "-2701 Can’t divide 1 by zero."},
                    Row{"a statement that is an expression", "1 + 1\n\"a\"\n{1}", ""},
                    Row{"modifiers of an expression", "key code 9 using {command down} & shift down",
                        "[\"key\",9,[\"command\",\"shift\"]]\n"}));

INSTANTIATE_TEST_SUITE_P(
    Targets, MachineTest,
    testing::Values(Row{"a process", "tell process \"P\" to key code 1", "[\"key\",1,[]]\n"},
                    Row{"a process without a name", "tell process foo to key code 1",
                        "-2753 The variable foo is not defined."},
                    Row{"an application that may be there", "key code 1\ntell app \"Other\" to delay",
                        "[\"key\",1,[]]\n[\"delay\",0]\n"}));

TEST(MachineTest, anApplicationThatIsNotThereFailsWhereItIsTold) {
    for (const char* source : {"delay\ntell app \"Other\" to delay", "\ntell app \"Other\" to activate"}) {
        const auto compiled = script::compile(source);
        RecordingInjector injector;
        script::SilentDesktop desktop;
        script::NoDialogs dialogs;
        script::Machine machine(std::get<script::Program>(compiled), {injector, desktop, dialogs});
        const script::RunResult result = machine.run();
        ASSERT_TRUE(result.error) << source;
        EXPECT_EQ(result.error->number, -1728);
        EXPECT_EQ(result.error->message, "Can’t get application \"Other\".");
        EXPECT_EQ(result.error->location.line, 2U);
    }
}

TEST(MachineTest, errorsNameTheirPlace) {
    const Traced result = traced("tell app \"System Events\"\n\tdelay 1\n\tdelay 1 + \"x\"\nend");
    EXPECT_EQ(result.phase, Traced::Phase::run);
    EXPECT_EQ(result.error, (script::ScriptError{-1700, "Can’t make \"x\" into type number.", {3, 10}}));
}

TEST(MachineTest, theWorkedExampleOfARecordedMacro) {
    const Traced result = traced(
        "tell application \"System Events\"\n\tkey code (1) using {command down}\ndelay 0.01\n\tdelay 0.5\n"
        "delay 0.01\n\tkey code (0) using {}\ndelay 0.01\nend tell\n");
    EXPECT_EQ(result.phase, Traced::Phase::none) << result.error.message;
    EXPECT_EQ(
        result.events,
        "[\"key\",1,[\"command\"]]\n[\"delay\",0.01]\n[\"delay\",0.5]\n[\"delay\",0.01]\n[\"key\",0,[]]\n"
        "[\"delay\",0.01]\n");
    EXPECT_EQ(result.warnings, Lines());
}

TEST(MachineTest, theCompilerWarnsOfWhatIsWrittenAndTheRunOfWhatItMeets) {
    const Traced result =
        traced("tell app \"System Events\"\nkey code 4279\nkey code {66} using command\nend");
    EXPECT_EQ(result.warnings, (Lines{"2:10 Key code 4279 is an extension, which only Keyrill plays.",
                                      "3:11 Key code 66 has no key; nothing is pressed.",
                                      "3:21 “command” is taken as “command down”.",
                                      "3:1 “command” is taken as “command down”.",
                                      "3:1 Key code 66 has no key; nothing is pressed."}));
}

TEST(MachineTest, warningsAreBounded) {
    std::string codes = "66";
    for (int i = 0; i < 2000; ++i) codes += ",66";
    EXPECT_EQ(
        traced("tell app \"System Events\" to repeat 0 times\nkey code {" + codes + "}\nend").warnings.size(),
        1000U);
}

TEST(MachineTest, aRunWarnsOnceOfOnePlace) {
    const Traced result = traced("tell app \"System Events\"\nrepeat 3 times\nkey code (60 + 6)\nend\nend");
    EXPECT_EQ(result.warnings, Lines{"3:1 Key code 66 has no key; nothing is pressed."});
}

TEST(MachineTest, longChainsOfOperatorsRun) {
    std::string sum = "delay 1";
    for (int i = 0; i < 100000; ++i) sum += " + 1";
    EXPECT_EQ(told(sum), "[\"delay\",100001]\n");
}

}  // namespace

// SPDX-License-Identifier: MIT
#include "platform/script/run/Run.h"

#include <gtest/gtest.h>

#include "platform/script/code/Compiler.h"
#include "platform/script/run/MachineServices.h"
#include "script/RecordingInjector.h"
#include "script/Traced.h"

namespace {

using Lines = std::vector<std::string>;

TEST(MachineTest, anApplicationThatIsNotThereFailsWhereItIsTold) {
    for (const char* source : {"delay\ntell app \"Other\" to delay", "\ntell app \"Other\" to activate"}) {
        const auto compiled = script::compile(source);
        RecordingInjector injector;
        script::SilentDesktop desktop;
        script::NoDialogs dialogs;
        const script::RunResult result = script::run(compiled.value(), {injector, desktop, dialogs});
        ASSERT_TRUE(result.error) << source;
        EXPECT_EQ(result.error->number, -1728);
        EXPECT_EQ(result.error->message, "Can’t get application \"Other\".");
        EXPECT_EQ(result.error->location.line, 2U);
    }
}

TEST(MachineTest, controlCharactersAreText) {
    EXPECT_EQ(told("keystroke \"\x01\""), "[\"text\",\"\\u0001\",[]]\n");
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

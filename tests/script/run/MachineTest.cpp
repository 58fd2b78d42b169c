// SPDX-License-Identifier: MIT
#include "platform/script/run/Run.h"

#include <gtest/gtest.h>

#include "platform/script/code/Compiler.h"
#include "platform/script/run/MachineServices.h"
#include "script/RecordingInjector.h"
#include "script/Traced.h"
#include "support/RecordedExample.h"

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
        EXPECT_EQ(result.error->message, R"(Can’t get application "Other".)");
        EXPECT_EQ(result.error->location.line, 2U);
    }
}

TEST(MachineTest, controlCharactersAreText) {
    EXPECT_EQ(told("keystroke \"\x01\""), "[\"text\",\"\\u0001\",[]]\n");
}

TEST(MachineTest, errorsNameTheirPlace) {
    const Traced result = traced(R"(tell app "System Events"
	delay 1
	delay 1 + "x"
end)");
    EXPECT_EQ(result.phase, Traced::Phase::run);
    EXPECT_EQ(result.error, (script::ScriptError{-1700, R"(Can’t make "x" into type number.)", {3, 10}}));
}

TEST(MachineTest, theWorkedExampleOfARecordedMacro) {
    const Traced result = traced(recordedexample::script);
    EXPECT_EQ(result.phase, Traced::Phase::none) << result.error.message;
    EXPECT_EQ(result.events, recordedexample::events);
    EXPECT_EQ(result.warnings, Lines());
}

TEST(MachineTest, theCompilerWarnsOfWhatIsWrittenAndTheRunOfWhatItMeets) {
    const Traced result = traced(R"(tell app "System Events"
key code 4279
key code {66} using command
end)");
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
    const Traced result = traced(R"(tell app "System Events"
repeat 3 times
key code (60 + 6)
end
end)");
    EXPECT_EQ(result.warnings, Lines{"3:1 Key code 66 has no key; nothing is pressed."});
}

TEST(MachineTest, longChainsOfOperatorsRun) {
    std::string sum = "delay 1";
    for (int i = 0; i < 100000; ++i) sum += " + 1";
    EXPECT_EQ(told(sum), "[\"delay\",100001]\n");
}

}  // namespace

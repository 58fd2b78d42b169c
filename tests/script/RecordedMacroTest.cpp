// SPDX-License-Identifier: MIT
//
// The round trip: what a recorded macro writes is what the language plays.
#include <gtest/gtest.h>

#include "core/Delay.h"
#include "core/KeyCode.h"
#include "core/Macro.h"
#include "platform/KeyCodes.h"
#include "platform/Modifiers.h"
#include "script/Traced.h"
#include "support/Keys.h"
#include "support/RecordedExample.h"

namespace {

void addKey(Macro& macro, std::uint32_t keyCode, std::uint32_t modifiers) {
    const auto action = createKeyCode(keyCode, "key", 'k');
    action->setModifiers(modifiers);
    macro.addAction(action);
}

TEST(RecordedMacroTest, playsWhatWasRecorded) {
    Macro macro;
    addKey(macro, 1, modifier::command);
    macro.addAction(createDelay(0.5));
    addKey(macro, 0, 0);
    const Traced result = traced(macro.script());
    EXPECT_EQ(result.phase, Traced::Phase::none) << result.error.message;
    EXPECT_EQ(result.events, recordedexample::events);
}

TEST(RecordedMacroTest, anEmptyMacroPlaysNothing) {
    const Traced result = traced(Macro().script());
    EXPECT_EQ(result.phase, Traced::Phase::none) << result.error.message;
    EXPECT_EQ(result.events, "");
}

TEST(RecordedMacroTest, allModifiersPlay) {
    Macro macro;
    addKey(macro, 18, modifier::shift | modifier::option | modifier::control | modifier::command);
    EXPECT_EQ(traced(macro.script()).events,
              R"(["key",18,["command","control","option","shift"]]
["delay",0.01]
)");
}

TEST(RecordedMacroTest, everyKeyThatCanBeRecordedPlays) {
    for (std::uint16_t evdev = 1; evdev <= keycode::maxEvdev; ++evdev) {
        if (evdev == evdevkey::power) continue;
        const std::uint32_t keyCode = keycode::fromEvdev(evdev);
        Macro macro;
        addKey(macro, keyCode, 0);
        addKey(macro, keyCode | keycode::choosers, 0);
        EXPECT_EQ(traced(macro.script()).events,
                  "[\"key\"," + std::to_string(keyCode) + ",[]]\n[\"delay\",0.01]\n" + "[\"key\"," +
                      std::to_string(keyCode | keycode::choosers) + ",[]]\n[\"delay\",0.01]\n");
    }
}

TEST(RecordedMacroTest, pausesOfEverySizeAreReadAsWritten) {
    Macro macro;
    for (const double seconds : {3.0, 1.23456789, 0.0001, 0.00001, 1234567.0, 0.0, -1.5}) {
        macro.addAction(createDelay(seconds));
    }
    std::string expected;
    for (const char* seconds : {"3", "1.23457", "0.0001", "1e-05", "1234570", "0", "-1.5"}) {
        expected += "[\"delay\"," + std::string(seconds) + "]\n[\"delay\",0.01]\n";
    }
    EXPECT_EQ(traced(macro.script()).events, expected);
}

}  // namespace

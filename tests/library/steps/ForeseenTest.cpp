// SPDX-License-Identifier: MIT
#include "library/steps/Foreseen.h"

#include <gtest/gtest.h>

#include "platform/KeyCodes.h"
#include "platform/Modifiers.h"
#include "support/Keys.h"

using steps::Foreseen;
using steps::foreseen;
using steps::Step;
using steps::StepKind;

namespace {

std::string told(const std::string& lines) {
    return "tell application \"System Events\"\n" + lines + "\nend tell\n";
}

TEST(ForeseenTest, tellsWhatAScriptWouldPress) {
    const Foreseen result = foreseen(told("repeat 3 times\nkey code 125\nend repeat\nkeystroke \"hi\"\ndelay "
                                          "0.5\nkeystroke \"c\" using control down"),
                                     {});
    EXPECT_FALSE(result.error);
    EXPECT_FALSE(result.isCut);
    EXPECT_EQ(result.steps, (std::vector<Step>{
                                {.kind = StepKind::key, .count = 3, .repeats = 3, .keyCode = 125},
                                {.kind = StepKind::text, .text = "hi"},
                                {.kind = StepKind::pause, .seconds = 0.5},
                                {.kind = StepKind::text, .modifiers = modifier::control, .text = "c"},
                            }));
}

TEST(ForeseenTest, tellsWhatIsHeld) {
    const Foreseen result =
        foreseen(told("key down shift\nkey code 0\nkey up shift\nkey down \"a\"\nkey up \"a\""), {});
    EXPECT_FALSE(result.error);
    EXPECT_EQ(result.steps,
              (std::vector<Step>{
                  {.kind = StepKind::keyDown, .keyCode = keycode::none, .modifiers = modifier::shift},
                  {.kind = StepKind::key, .keyCode = key::a},
                  {.kind = StepKind::keyUp, .keyCode = keycode::none, .modifiers = modifier::shift},
                  {.kind = StepKind::keyDown, .keyCode = keycode::none, .text = "a"},
                  {.kind = StepKind::keyUp, .keyCode = keycode::none, .text = "a"},
              }));
}

TEST(ForeseenTest, questionsAreAnsweredByTheirDefault) {
    const Foreseen result = foreseen(
        "display dialog \"Sure?\"\nif button returned of result is \"OK\" then tell application "
        "\"System Events\" to key code 36\n",
        {});
    EXPECT_FALSE(result.error);
    ASSERT_EQ(result.steps.size(), 2U);
    EXPECT_EQ(result.steps[0], (Step{.kind = StepKind::question, .text = "Sure?"}));
    EXPECT_EQ(result.steps[1].keyCode, 36U);
}

TEST(ForeseenTest, isCutAfterTheMostSteps) {
    const Foreseen result = foreseen(told("repeat\nkey code 0\nkey code 1\nend repeat"), {.mostSteps = 100});
    EXPECT_TRUE(result.isCut);
    EXPECT_FALSE(result.error);
    EXPECT_EQ(result.steps.size(), 100U);
}

TEST(ForeseenTest, isCutWhenPatienceIsOverAlsoWhereNothingIsPressed) {
    int asked = 0;
    const Foreseen result = foreseen("repeat\nend repeat\n", {.isOver = [&asked] { return ++asked > 3; }});
    EXPECT_TRUE(result.isCut);
    EXPECT_TRUE(result.steps.empty());
}

TEST(ForeseenTest, aScriptThatEndsItselfIsNotCut) {
    const Foreseen result = foreseen("error number -128\n", {});
    EXPECT_FALSE(result.isCut);
    EXPECT_FALSE(result.error);
}

TEST(ForeseenTest, tellsWhyAScriptDoesNotCompileOrFails) {
    const Foreseen broken = foreseen("tell application\n", {});
    ASSERT_TRUE(broken.error);
    EXPECT_EQ(broken.error->location.line, 1U);
    const Foreseen failing = foreseen(told("key code 0\nkey code (1 / 0)"), {});
    ASSERT_TRUE(failing.error);
    EXPECT_EQ(failing.error->location.line, 3U);
    EXPECT_EQ(failing.steps.size(), 1U);
}

}  // namespace

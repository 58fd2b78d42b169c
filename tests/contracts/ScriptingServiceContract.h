// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "contracts/ScriptingWorld.h"
#include "platform/ScriptingService.h"

/// What platform/ScriptingService.h promises, told by the text that an application got.
class ScriptingServiceContract : public testing::TestWithParam<ScriptingWorldFactory> {
  protected:
    void SetUp() override {
        m_world = GetParam()();
        ASSERT_NE(m_world, nullptr);
        scripting().startPlayback();
    }

    ScriptingWorld& world() { return *m_world; }
    ScriptingService& scripting() { return m_world->scripting(); }

    /// Runs lines inside `tell application "System Events"`.
    void tell(const std::string& lines) {
        scripting().run("tell application \"System Events\"\n" + lines + "\nend tell\n");
    }

  private:
    std::unique_ptr<ScriptingWorld> m_world;
};

TEST_P(ScriptingServiceContract, aRunTypesWhatItsScriptSaysBeforeItReturns) {
    tell("keystroke \"ab\"\nkey code 8");
    EXPECT_EQ(world().typed(), "abc");
}

TEST_P(ScriptingServiceContract, runsComeOneAfterTheOther) {
    tell(R"(keystroke "ab")");
    tell(R"(keystroke "cd")");
    EXPECT_EQ(world().typed(), "abcd");
}

TEST_P(ScriptingServiceContract, anEmptyScriptDoesNothing) {
    scripting().run("");
    EXPECT_EQ(world().typed(), "");
    EXPECT_FALSE(scripting().isCancelled());
}

TEST_P(ScriptingServiceContract, aScriptThatDoesNotCompileTypesNothingAndTheNextOnePlays) {
    tell("keystroke \"ab\"\nrepeat");
    tell(R"(keystroke "cd")");
    EXPECT_EQ(world().typed(), "cd");
}

TEST_P(ScriptingServiceContract, anErrorEndsARunAndTheNextOnePlays) {
    tell(R"(keystroke "ab"
delay "x"
keystroke "cd")");
    tell(R"(keystroke "ef")");
    EXPECT_EQ(world().typed(), "abef");
}

TEST_P(ScriptingServiceContract, aTextThatDoesNotCompileIsFoundWithoutRunningIt) {
    const auto failure = scripting().check("beep\nrepeat\n");
    ASSERT_TRUE(failure.has_value());
    EXPECT_FALSE(failure->hasBegun);
    EXPECT_EQ(failure->line, 3U);
    EXPECT_NE(failure->error.message, "");
    EXPECT_EQ(scripting().check("beep\n"), std::nullopt);
    EXPECT_EQ(scripting().takeFailure(), std::nullopt);
}

TEST_P(ScriptingServiceContract, theFirstFailureOfAPlaybackIsKeptUntilItIsTaken) {
    tell(R"(keystroke "ab"
delay "x")");
    scripting().run("repeat");
    const auto failure = scripting().takeFailure();
    ASSERT_TRUE(failure.has_value());
    EXPECT_TRUE(failure->hasBegun);
    EXPECT_EQ(failure->line, 3U);
    EXPECT_NE(failure->error.message, "");
    EXPECT_EQ(scripting().takeFailure(), std::nullopt);
}

TEST_P(ScriptingServiceContract, theNextPlaybackForgetsFailures) {
    scripting().run("repeat");
    scripting().startPlayback();
    EXPECT_EQ(scripting().takeFailure(), std::nullopt);
}

TEST_P(ScriptingServiceContract, aCancelledRunHasNotFailed) {
    world().userAsksToStop();
    tell(R"(keystroke "ab")");
    EXPECT_EQ(scripting().takeFailure(), std::nullopt);
}

TEST_P(ScriptingServiceContract, aPlaybackIsNotCancelledUntilTheUserAsks) {
    tell(R"(keystroke "ab")");
    EXPECT_FALSE(scripting().isCancelled());
    world().userAsksToStop();
    EXPECT_TRUE(scripting().isCancelled());
}

TEST_P(ScriptingServiceContract, aCancelledPlaybackTypesNothingMore) {
    world().userAsksToStop();
    tell(R"(keystroke "ab")");
    EXPECT_EQ(world().typed(), "");
}

TEST_P(ScriptingServiceContract, aCancelledLoopEndsThoughItPressesNothing) {
    world().userAsksToStop();
    scripting().run("repeat\nend repeat");
    EXPECT_TRUE(scripting().isCancelled());
}

TEST_P(ScriptingServiceContract, theNextPlaybackForgetsTheWishToStop) {
    world().userAsksToStop();
    scripting().startPlayback();
    EXPECT_FALSE(scripting().isCancelled());
    tell(R"(keystroke "ab")");
    EXPECT_EQ(world().typed(), "ab");
}

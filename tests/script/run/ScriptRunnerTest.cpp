// SPDX-License-Identifier: MIT
#include "platform/script/run/ScriptRunner.h"

#include <gtest/gtest.h>

#include "contracts/ScriptingServiceContract.h"
#include "platform/fake/FakePlatform.h"
#include "platform/script/code/Compiler.h"
#include "platform/script/run/Run.h"
#include "script/RecordingInjector.h"

namespace {

using Calls = std::vector<std::string>;

class ScriptRunnerTest : public testing::Test {
  protected:
    void tell(const std::string& lines) {
        m_runner.run("tell application \"System Events\"\n" + lines + "\nend tell\n");
    }
    /// The result that the runner does not tell.
    script::RunResult resultOf(const std::string& lines) {
        const auto compiled =
            script::compile("tell application \"System Events\"\n" + lines + "\nend tell\n");
        script::SilentDesktop desktop;
        script::NoDialogs dialogs;
        return script::run(compiled.value(), {m_injector, desktop, dialogs});
    }

    RecordingInjector m_injector;
    script::SilentDesktop m_desktop;
    script::ScriptRunner m_runner{m_injector, m_desktop};
};

TEST_F(ScriptRunnerTest, aScriptWithoutStrokesAndPausesOpensNoSession) {
    m_runner.run("");
    tell(R"(1 + 1
repeat 3 times
end
keystroke ""
key code 66)");
    EXPECT_EQ(m_injector.calls, Calls());
}

TEST_F(ScriptRunnerTest, aScriptThatDoesNotCompileOpensNoSession) {
    tell("key code 1\nkey code");
    EXPECT_EQ(m_injector.calls, Calls());
}

TEST_F(ScriptRunnerTest, oneSessionServesTheRunAndEndsWithIt) {
    tell(R"(key code 1
delay 0.1
keystroke "ab"
key down shift
key up shift)");
    EXPECT_EQ(m_injector.calls, (Calls{"open", "key 1", "pause", "text ab", "down", "up", "close"}));
}

TEST_F(ScriptRunnerTest, theSessionEndsAfterAnErrorToo) {
    tell(R"(key down shift
delay "x"
key code 1)");
    EXPECT_EQ(m_injector.calls, (Calls{"open", "down", "close"}));
}

TEST_F(ScriptRunnerTest, allLiteralTextsArePlannedBeforeTheFirstStroke) {
    tell(R"(key code 1
keystroke "é" & "b" & 1
repeat 0 times
keystroke {"ü"}
end
key down "w")");
    EXPECT_EQ(m_injector.plannedTexts, (Calls{"é", "b", "ü", "w"}));
}

TEST_F(ScriptRunnerTest, aRunInsideARunDoesNothing) {
    m_injector.duringEachStep = [this] { tell("key code 2"); };
    tell("key code 1");
    EXPECT_EQ(m_injector.calls, (Calls{"open", "key 1", "close"}));
    m_injector.duringEachStep = [] {};
    tell("key code 3");
    EXPECT_EQ(m_injector.calls.at(4), "key 3");
}

TEST_F(ScriptRunnerTest, aStopEndsTheRunAtTheNextStep) {
    m_injector.duringEachStep = [this] { m_injector.cancelled = true; };
    const script::RunResult result = resultOf("key code {1, 2}\nkey code 3");
    EXPECT_EQ(result.end, script::RunEnd::cancelled);
    EXPECT_EQ(result.error, (script::ScriptError{-128, "User canceled.", {2, 1}}));
    EXPECT_EQ(m_injector.calls, (Calls{"open", "key 1", "close"}));
}

TEST_F(ScriptRunnerTest, aStopEndsALoopThatDoesNothing) {
    int asked = 0;
    m_injector.whenAsked = [&] { m_injector.cancelled = ++asked == 1000; };
    const script::RunResult result = resultOf("repeat\nend repeat");
    EXPECT_EQ(result.end, script::RunEnd::cancelled);
    EXPECT_EQ(asked, 1000);
}

TEST_F(ScriptRunnerTest, anErrorOfTheInjectorIsAnErrorOfTheRun) {
    m_injector.stepError = "No key types “é”.";
    const script::RunResult result = resultOf(R"(keystroke "é")");
    EXPECT_EQ(result.end, script::RunEnd::failed);
    EXPECT_EQ(result.error, (script::ScriptError{
                                -10000, "System Events got an error: No key types “é”. Do this.", {2, 1}}));
}

TEST_F(ScriptRunnerTest, aDesktopThatLetsNoKeysBePressedIsAnErrorOfTheRun) {
    m_injector.openError = "The server has no XTEST.";
    const script::RunResult result = resultOf("delay 1");
    EXPECT_EQ(result.end, script::RunEnd::failed);
    EXPECT_EQ(result.error,
              (script::ScriptError{1002, "System Events got an error: The server has no XTEST.", {2, 1}}));
}

/// Answers whatever is asked with the second button.
class SecondButton : public script::NoDialogs {
  public:
    Result<ScriptAnswer> ask(const ScriptDialog& /*dialog*/) override { return ScriptAnswer{1, "", {}}; }
};

TEST_F(ScriptRunnerTest, scriptsAskThroughTheDialogsThatTheyAreGiven) {
    const std::string lines = R"(display dialog "Go on?"
key code 0)";
    tell(lines);
    EXPECT_EQ(m_injector.calls, Calls());
    SecondButton dialogs;
    m_runner.askThrough(dialogs);
    tell(lines);
    EXPECT_EQ(m_injector.calls, Calls({"open", "key 0", "close"}));
}

TEST(ScriptRunnerSpeedTest, theSpeedDividesPausesAndNothingElse) {
    FakePlatform platform;
    script::SilentDesktop desktop;
    script::ScriptRunner runner(platform.keyInjector, desktop);
    const std::string source = R"(tell application "System Events"
key code 1 using control down
delay 0.5
end tell
)";
    runner.runAtSpeed(source, 4);
    runner.runAtSpeed(source, 0.25);
    runner.run(source);
    EXPECT_EQ(platform.keyInjector.postedKeys(), (Calls{"key 1 control", "pause 0.125", "key 1 control",
                                                        "pause 2", "key 1 control", "pause 0.5"}));
}

TEST_F(ScriptRunnerTest, aFailureIsThereUntilItIsTaken) {
    EXPECT_FALSE(m_runner.hasFailed());
    m_runner.run("repeat");
    EXPECT_TRUE(m_runner.hasFailed());
    EXPECT_TRUE(m_runner.takeFailure().has_value());
    EXPECT_FALSE(m_runner.hasFailed());
}

TEST_F(ScriptRunnerTest, playbackIsTheInjectorsMatter) {
    m_injector.cancelled = true;
    EXPECT_TRUE(m_runner.isCancelled());
    m_runner.startPlayback();
    EXPECT_FALSE(m_runner.isCancelled());
}

/// What a line written by the run means for the application in front.
std::string typedBy(const std::string& step) {
    if (step.starts_with("text ")) return step.substr(5);
    return step == "key 8" ? "c" : "";
}

class RecordingWorld : public ScriptingWorld {
  public:
    ScriptingService& scripting() override { return m_runner; }
    std::string typed() override {
        std::string text;
        for (const std::string& call : m_injector.calls) text += typedBy(call);
        return text;
    }
    void userAsksToStop() override { m_injector.cancelled = true; }

  private:
    RecordingInjector m_injector;
    script::SilentDesktop m_desktop;
    script::ScriptRunner m_runner{m_injector, m_desktop};
};

class FakeWorld : public ScriptingWorld {
  public:
    ScriptingService& scripting() override { return m_runner; }
    std::string typed() override {
        std::string text;
        for (const std::string& step : m_platform.keyInjector.postedKeys()) text += typedBy(step);
        return text;
    }
    void userAsksToStop() override { m_platform.keyInjector.userCancels(); }

  private:
    FakePlatform m_platform;
    script::SilentDesktop m_desktop;
    script::ScriptRunner m_runner{m_platform.keyInjector, m_desktop};
};

template <typename World>
std::unique_ptr<ScriptingWorld> makeWorld() {
    return std::make_unique<World>();
}

INSTANTIATE_TEST_SUITE_P(Recording, ScriptingServiceContract, testing::Values(&makeWorld<RecordingWorld>));
INSTANTIATE_TEST_SUITE_P(Fake, ScriptingServiceContract, testing::Values(&makeWorld<FakeWorld>));

}  // namespace

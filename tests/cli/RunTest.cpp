// SPDX-License-Identifier: MIT
//
// keyrill-script run, judged by what a terminal gets.
#include <gtest/gtest.h>
#include <signal.h>

#include <fstream>

#include "display/KeyboardProbe.h"
#include "support/Child.h"
#include "support/Programs.h"
#include "support/Terminal.h"
#include "support/XServer.h"

namespace {

class RunTest : public testing::Test {
  protected:
    /// Plays lines inside `tell application "System Events"`.
    std::unique_ptr<Child> play(const std::string& lines) {
        std::ofstream(m_folder.file("script")) << "tell application \"System Events\"\n"
                                               << lines << "\nend tell\n";
        return std::make_unique<Child>(
            std::vector<std::string>{programs::scriptTool, "run", m_folder.file("script")},
            Child::Options{
                .environment = {{"DISPLAY", m_server.display()}, {"XDG_RUNTIME_DIR", m_folder.path()}},
                .outputFile = m_folder.file("output")});
    }
    std::string output() const { return contentOf(m_folder.file("output")); }
    const Terminal& terminal() const { return m_terminal; }
    const KeyboardProbe& probe() const { return m_probe; }
    std::string script() const { return m_folder.file("script"); }

  private:
    XServer m_server;
    TemporaryFolder m_folder;
    Terminal m_terminal{m_server.display()};
    KeyboardProbe m_probe{m_server.display()};
};

TEST_F(RunTest, typesIntoTheApplicationInFront) {
    const auto program = play(R"(keystroke "Héllo, 日本! " & 12
key code 0 using shift down
delay 0.01
key code 36)");
    EXPECT_EQ(program->wait(), 0) << output();
    const std::string expected = "Héllo, 日本! 12A\n";
    EXPECT_EQ(terminal().typed(expected.size()), expected);
    EXPECT_EQ(output(), "");
}

TEST_F(RunTest, anErrorIsToldAndEndsTheRun) {
    const auto program = play(R"(keystroke "ab"
delay "x"
keystroke "cd")");
    EXPECT_EQ(program->wait(), 1);
    EXPECT_EQ(output(), script() +
                            ":3:1: execution error: Can’t make \"x\" into type number. (-1700)\n"
                            "delay \"x\"\n^\nHint: “delay” counts seconds: delay 0.5.\n");
    EXPECT_EQ(terminal().typed(2), "ab");
}

TEST_F(RunTest, whatAScriptForgetsToReleaseIsReleased) {
    const std::string before = probe().held();
    const auto program = play("key down shift\nkeystroke \"a\"");
    EXPECT_EQ(program->wait(), 0) << output();
    EXPECT_EQ(probe().held(), before);
}

class RunSignalTest : public RunTest, public testing::WithParamInterface<int> {};

TEST_P(RunSignalTest, releasesWhatIsHeldAndThenEndsTheProgram) {
    const std::string before = probe().held();
    const auto program = play("key down command\ndelay 1000");
    ASSERT_TRUE(eventually([&] { return probe().held() != before; })) << output();
    program->signal(GetParam());
    EXPECT_EQ(program->wait(), 128 + GetParam());
    EXPECT_EQ(probe().held(), before);
}

TEST_P(RunSignalTest, endsALoopThatPressesNothing) {
    const auto program = play(R"(keystroke "a"
repeat
end repeat)");
    ASSERT_EQ(terminal().typed(1), "a") << output();
    program->signal(GetParam());
    EXPECT_EQ(program->wait(), 128 + GetParam());
}

INSTANTIATE_TEST_SUITE_P(Ending, RunSignalTest, testing::Values(SIGINT, SIGTERM, SIGHUP));

}  // namespace

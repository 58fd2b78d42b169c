// SPDX-License-Identifier: MIT
//
// One script in the windows of programs of three kinds, on two keyboard layouts.
#include <gtest/gtest.h>
#include <signal.h>

#include "cli/FieldScript.h"
#include "cli/Play.h"
#include "support/Editor.h"
#include "support/Terminal.h"
#include "support/XServer.h"

namespace {

class FieldTest : public testing::TestWithParam<const char*> {
  protected:
    FieldTest() { outputOf({"setxkbmap", "-layout", GetParam()}, {{"DISPLAY", display()}}); }

    const std::string& display() const { return m_server.display(); }

    void expectTyped(const Editor& editor) const {
        Play play(display(), fieldscript::source);
        EXPECT_EQ(play.program().wait(), 0);
        EXPECT_EQ(play.output(), "");
        EXPECT_EQ(editor.saved(fieldscript::inField()), fieldscript::inField());
    }

  private:
    XServer m_server;
};

TEST_P(FieldTest, aScriptTypesExactlyItsTextIntoAGtkProgram) {
    expectTyped(Editor(display(), Editor::Toolkit::gtk));
}

TEST_P(FieldTest, aScriptTypesExactlyItsTextIntoAQtProgram) {
    expectTyped(Editor(display(), Editor::Toolkit::qt));
}

TEST_P(FieldTest, aScriptTypesExactlyItsTextIntoATerminal) {
    const Terminal terminal(display());
    Play play(display(), fieldscript::source);
    EXPECT_EQ(play.program().wait(), 0);
    EXPECT_EQ(play.output(), "");
    EXPECT_EQ(terminal.typed(fieldscript::inTerminal().size()), fieldscript::inTerminal());
}

INSTANTIATE_TEST_SUITE_P(Layouts, FieldTest, testing::Values("us", "de"),
                         [](const auto& layout) { return std::string(layout.param); });

/// A program that reads nothing for a while, as on a machine that is too busy for it.
class StoppedProgram {
  public:
    explicit StoppedProgram(pid_t process) : m_process(process) { kill(process, SIGSTOP); }
    ~StoppedProgram() { kill(m_process, SIGCONT); }
    StoppedProgram(const StoppedProgram&) = delete;
    StoppedProgram& operator=(const StoppedProgram&) = delete;

  private:
    pid_t m_process;
};

/// Long enough for a key to be given another character, if nobody asked whether it has been read.
constexpr std::chrono::milliseconds lag{500};

class LateReaderTest : public testing::Test {
  protected:
    const std::string& display() const { return m_server.display(); }

    /// Starts to play; the program reads again when the script has waited for it a while.
    std::unique_ptr<Play> playWhileStopped(pid_t process) const {
        const StoppedProgram stopped(process);
        auto play = std::make_unique<Play>(display(), fieldscript::source);
        EXPECT_EQ(play->program().wait(lag), -1) << "nobody is waited for";
        return play;
    }

    void expectTyped(Editor::Toolkit toolkit) const {
        const Editor editor(display(), toolkit);
        const auto play = playWhileStopped(editor.pid());
        EXPECT_EQ(play->program().wait(), 0);
        EXPECT_EQ(editor.saved(fieldscript::inField()), fieldscript::inField());
    }

  private:
    XServer m_server;
};

TEST_F(LateReaderTest, aGtkProgramGetsExactlyTheText) { expectTyped(Editor::Toolkit::gtk); }

TEST_F(LateReaderTest, aQtProgramGetsExactlyTheText) { expectTyped(Editor::Toolkit::qt); }

// It answers no pings.
TEST_F(LateReaderTest, aTerminalGetsExactlyTheText) {
    const Terminal terminal(display());
    const auto play = playWhileStopped(terminal.pid());
    EXPECT_EQ(play->program().wait(), 0);
    EXPECT_EQ(terminal.typed(fieldscript::inTerminal().size()), fieldscript::inTerminal());
}

TEST_F(LateReaderTest, aProgramThatNeverReadsEndsTheWait) {
    const Editor editor(display(), Editor::Toolkit::gtk);
    const StoppedProgram stopped(editor.pid());
    Play play(display(), fieldscript::source);
    EXPECT_EQ(play.program().wait(std::chrono::minutes(1)), 1);
    EXPECT_NE(play.output().find("The program that is typed into reads nothing; not typed: \""),
              std::string::npos)
        << play.output();
}

}  // namespace

// SPDX-License-Identifier: MIT
//
// Text that no layout has, typed by keyrill-script into programs that are busy with something else: they look
// up what was typed when they come to it.
#include <gtest/gtest.h>
#include <signal.h>

#include <string>

#include "cli/Play.h"
#include "display/KeyboardProbe.h"
#include "support/Editor.h"
#include "support/Terminal.h"
#include "support/XServer.h"

namespace {

constexpr const char* record = "_KEYRILL_BOUND_KEYS";
/// Characters that need a key each.
constexpr const char* text =
    "日月火水木金土年時分秒東西南北上下左右中大小山川田人口目耳手足力男女子学校先生本文字車電気天雨雪花草竹"
    "糸貝石白黒青赤音森林村町";

class BusyReaderTest : public testing::Test {
  protected:
    BusyReaderTest() : m_probe(m_server.display()) {}

    const std::string& display() const { return m_server.display(); }
    const KeyboardProbe& probe() const { return m_probe; }
    static std::string script() {
        return R"(tell application "System Events" to keystroke ")" + std::string(text) + '"';
    }

    /// Plays the text; the program is stopped before, and goes on so long after the keys were given their
    /// meaning.
    void playWhileStopped(const WindowedProgram& program, std::chrono::milliseconds duration) const {
        ASSERT_EQ(kill(program.pid(), SIGSTOP), 0);
        Play play(display(), script());
        EXPECT_TRUE(eventually([this] { return probe().hasProperty(record); })) << play.output();
        EXPECT_EQ(play.program().wait(duration), -1) << "it has not waited for the reader";
        ASSERT_EQ(kill(program.pid(), SIGCONT), 0);
        EXPECT_EQ(play.program().wait(), 0) << play.output();
        EXPECT_EQ(play.output(), "");
        EXPECT_FALSE(probe().hasProperty(record));
    }

  private:
    XServer m_server;
    KeyboardProbe m_probe;
};

TEST_F(BusyReaderTest, aTerminalThatIsStoppedGetsAllOfIt) {
    const Terminal terminal(display());
    playWhileStopped(terminal, std::chrono::milliseconds(2000));
    const std::string expected = text;
    EXPECT_EQ(terminal.typed(expected.size()), expected);
}

TEST_F(BusyReaderTest, anEditorThatIsStoppedGetsAllOfIt) {
    const Editor editor(display(), Editor::Toolkit::gtk);
    playWhileStopped(editor, std::chrono::milliseconds(2000));
    outputOf({"xdotool", "key", "ctrl+s"}, {{"DISPLAY", display()}});
    EXPECT_EQ(editor.saved(text), text);
}

TEST_F(BusyReaderTest, aProgramThatSleepsInItsWorkGetsAllOfIt) {
    const TemporaryFolder folder;
    const Child reader({KEYRILL_SLEEPY_READER, folder.file("typed"), "1500"},
                       {.environment = {{"DISPLAY", display()}}});
    ASSERT_TRUE(eventually([&] { return !contentOf(folder.file("typed.ready")).empty(); }));
    Play play(display(), script());
    EXPECT_EQ(play.program().wait(), 0) << play.output();
    EXPECT_TRUE(eventually([&] { return contentOf(folder.file("typed")) == text; }))
        << contentOf(folder.file("typed"));
}

TEST_F(BusyReaderTest, aProgramThatEndsUnreadHoldsNothingUp) {
    const Terminal terminal(display());
    ASSERT_EQ(kill(terminal.pid(), SIGSTOP), 0);
    Play play(display(), script());
    EXPECT_TRUE(eventually([this] { return probe().hasProperty(record); })) << play.output();
    ASSERT_EQ(kill(terminal.pid(), SIGKILL), 0);
    EXPECT_EQ(play.program().wait(std::chrono::seconds(10)), 0) << play.output();
}

TEST_F(BusyReaderTest, aSignalEndsTheWait) {
    const Terminal terminal(display());
    ASSERT_EQ(kill(terminal.pid(), SIGSTOP), 0);
    Play play(display(), script());
    EXPECT_TRUE(eventually([this] { return probe().hasProperty(record); })) << play.output();
    EXPECT_EQ(play.program().wait(std::chrono::milliseconds(500)), -1) << play.output();
    play.program().signal(SIGTERM);
    EXPECT_EQ(play.program().wait(), 128 + SIGTERM);
    EXPECT_FALSE(probe().hasProperty(record));
}

}  // namespace

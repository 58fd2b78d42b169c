// SPDX-License-Identifier: MIT
//
// keyrill-script run where there is no display, at a terminal's Ctrl+C, and when the X server goes.
#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <fstream>
#include <stdexcept>
#include <utility>

#include "cli/Play.h"
#include "display/KeyboardProbe.h"
#include "support/Programs.h"
#include "support/Terminal.h"
#include "support/XServer.h"

namespace {

constexpr const char* holding =
    R"(tell application "System Events"
key down {command, shift}
delay 1000
end tell
)";

/// keyrill-script as a shell runs it: in front, on a terminal of its own.
class RunOnTerminal {
  public:
    RunOnTerminal(const std::string& display, const std::string& script) {
        std::ofstream(m_folder.file("script")) << script;
        m_process = forkpty(&m_terminal, nullptr, nullptr, nullptr);
        if (m_process < 0) throw std::runtime_error("no terminal");
        if (m_process == 0) start(display);
    }
    ~RunOnTerminal() {
        if (!m_hasEnded) kill(m_process, SIGKILL);
        if (!m_hasEnded) waitpid(m_process, nullptr, 0);
        if (m_terminal >= 0) close(m_terminal);
    }
    RunOnTerminal(const RunOnTerminal&) = delete;
    RunOnTerminal& operator=(const RunOnTerminal&) = delete;

    void type(char character) const { ASSERT_EQ(write(m_terminal, &character, 1), 1); }
    void closeTerminal() { close(std::exchange(m_terminal, -1)); }
    /// Waits until that is on the screen.
    [[nodiscard]] bool shows(const std::string& text) {
        return eventually([&] {
            pollfd waited{m_terminal, POLLIN, 0};
            if (poll(&waited, 1, 0) == 1) m_seen += output();
            return m_seen.find(text) != std::string::npos;
        });
    }
    const std::string& seen() const { return m_seen; }
    /// As of waitpid(); -1 at a deadline.
    int wait() {
        int status = -1;
        m_hasEnded = eventually([&] { return waitpid(m_process, &status, WNOHANG) == m_process; });
        return status;
    }
    /// What it has told, when it has ended.
    std::string output() const {
        std::array<char, 4096> bytes{};
        const ssize_t count = read(m_terminal, bytes.data(), bytes.size());
        return {bytes.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0))};
    }

  private:
    [[noreturn]] void start(const std::string& display) const {
        setenv("DISPLAY", display.c_str(), 1);
        setenv("XDG_RUNTIME_DIR", m_folder.path().c_str(), 1);
        execl(programs::scriptTool, "keyrill-script", "run", m_folder.file("script").c_str(), nullptr);
        _exit(127);
    }

    TemporaryFolder m_folder;
    int m_terminal = -1;
    pid_t m_process = -1;
    bool m_hasEnded = false;
    std::string m_seen;
};

TEST(InterruptionTest, controlCReleasesAllKeysAndEndsTheProgram) {
    const XServer server;
    const KeyboardProbe probe(server.display());
    const std::string before = probe.held();
    RunOnTerminal program(server.display(), holding);
    ASSERT_TRUE(eventually([&] { return probe.held() != before; }));
    program.type('\x03');
    const int status = program.wait();
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGINT) << status << ": " << program.output();
    EXPECT_EQ(probe.awaitHeld(before), before);
}

TEST(InterruptionTest, aClosedTerminalReleasesAllKeys) {
    const XServer server;
    const KeyboardProbe probe(server.display());
    const std::string before = probe.held();
    RunOnTerminal program(server.display(), holding);
    ASSERT_TRUE(eventually([&] { return probe.held() != before; }));
    program.closeTerminal();
    const int status = program.wait();
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGHUP) << status;
    EXPECT_EQ(probe.awaitHeld(before), before);
}

/// A question on the terminal, while keys could be pressed.
class QuestionTest : public testing::TestWithParam<const char*> {
  protected:
    XServer server;
    RunOnTerminal program{server.display(), GetParam()};
};

TEST_P(QuestionTest, endsAtControlC) {
    ASSERT_TRUE(program.shows("> ")) << program.seen();
    program.type('\x03');
    const int status = program.wait();
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGINT) << status << ": " << program.seen();
}

TEST_P(QuestionTest, endsWithTheServer) {
    ASSERT_TRUE(program.shows("> ")) << program.seen();
    server.program().signal(SIGKILL);
    const int status = program.wait();
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 1) << status << ": " << program.seen();
}

INSTANTIATE_TEST_SUITE_P(Questions, QuestionTest,
                         testing::Values("display dialog \"x\"", R"(choose from list {"a"})"));

/// Without the streams that a program has, its connections would get their numbers.
TEST(InterruptionTest, aRunWithoutItsStreamsTypesAllAndEnds) {
    const XServer server;
    const Terminal terminal(server.display());
    const TemporaryFolder folder;
    std::ofstream(folder.file("script"))
        << "tell application \"System Events\"\nkeystroke \"one\"\n"
           "log \"hello hello hello hello hello\"\nkeystroke \"two\"\nend tell\n";
    for (const char* closed : {"2>&-", ">&- 2>&-", "<&- >&- 2>&-"}) {
        Child run({"sh", "-c", R"(exec "$0" run "$1" )" + std::string(closed), programs::scriptTool,
                   folder.file("script")},
                  {.environment = {{"DISPLAY", server.display()}, {"XDG_RUNTIME_DIR", folder.path()}}});
        EXPECT_EQ(run.wait(), 0) << closed;
    }
    EXPECT_EQ(terminal.typed(18), "onetwoonetwoonetwo");
}

struct NoDisplay {
    const char* name;
    const char* display;
};

class NoDisplayTest : public testing::TestWithParam<NoDisplay> {};

TEST_P(NoDisplayTest, isToldInOneLine) {
    Play play(GetParam().display, holding);
    EXPECT_EQ(play.program().wait(), 1);
    EXPECT_EQ(play.output(), std::string("keyrill-script: The X server of display \"") + GetParam().display +
                                 "\" cannot be reached. Start the program inside a desktop session, or set "
                                 "DISPLAY to a running X server.\n");
}

constexpr NoDisplay displays[] = {{"unset", ""}, {"withoutServer", ":59999"}, {"noName", "nonsense"}};

INSTANTIATE_TEST_SUITE_P(Displays, NoDisplayTest, testing::ValuesIn(displays),
                         [](const auto& display) { return std::string(display.param.name); });

class LostServerTest : public testing::TestWithParam<const char*> {};

TEST_P(LostServerTest, endsTheRunWithAnError) {
    XServer server;
    Play play(server.display(),
              std::string("tell application \"System Events\"\n") + GetParam() + "\nend tell\n");
    const KeyboardProbe probe(server.display());
    const std::string before = probe.held();
    ASSERT_TRUE(eventually([&] { return probe.held() != before; })) << play.output();
    server.program().signal(SIGKILL);
    EXPECT_EQ(play.program().wait(), 1);
    EXPECT_NE(play.output().find("X server"), std::string::npos) << play.output();
    EXPECT_EQ(play.output().find("User canceled"), std::string::npos) << play.output();
}

INSTANTIATE_TEST_SUITE_P(
    Moments, LostServerTest,
    testing::Values("key down shift\ndelay 1000", "key down shift\nrepeat\nend repeat",
                    "key down shift\nrepeat\nkeystroke \"a\"\nend repeat",
                    "key down shift\nrepeat\ntry\nkeystroke \"a\"\nend try\nend repeat"));

}  // namespace

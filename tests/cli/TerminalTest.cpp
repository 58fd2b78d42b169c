// SPDX-License-Identifier: MIT
//
// What a script asks on the terminal that keyrill-script runs in, where there is no display.
#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <string>

#include "platform/Descriptor.h"
#include "support/Child.h"
#include "support/Programs.h"

namespace {

/// keyrill-script run with a terminal of its own, and the person in front of it.
class TerminalRun {
  public:
    /// `language` is the user's, as LANGUAGE has it.
    explicit TerminalRun(const std::string& script, const char* language = "en") {
        int master = -1;
        m_pid = forkpty(&master, nullptr, nullptr, nullptr);
        if (m_pid == 0) {
            unsetenv("DISPLAY");
            unsetenv("WAYLAND_DISPLAY");
            setenv("LANGUAGE", language, 1);
            execl(programs::scriptTool, programs::scriptTool, "run", "-e", script.c_str(), nullptr);
            _exit(127);
        }
        m_master = Descriptor(master);
    }
    ~TerminalRun() {
        if (m_pid > 0) kill(m_pid, SIGKILL);
        if (m_pid > 0) waitpid(m_pid, nullptr, 0);
    }
    TerminalRun(const TerminalRun&) = delete;
    TerminalRun& operator=(const TerminalRun&) = delete;

    /// Waits until that is on the screen, behind what was looked for before.
    [[nodiscard]] bool shows(const std::string& text) {
        std::size_t place = m_screen.find(text, m_seen);
        while (place == std::string::npos && read()) place = m_screen.find(text, m_seen);
        if (place != std::string::npos) m_seen = place + text.size();
        return place != std::string::npos;
    }
    void type(const std::string& keys) const {
        ASSERT_EQ(write(m_master.number(), keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
    }
    /// The exit status, once it has ended; 128 and the number of the signal that has ended it.
    int end() {
        while (read()) {
        }
        int status = 0;
        waitpid(m_pid, &status, 0);
        m_pid = -1;
        return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    }
    void signal(int number) const { kill(m_pid, number); }
    /// All that was on the screen, what was typed among it.
    const std::string& screen() const { return m_screen; }

  private:
    /// False at the end of all output, or when there was none for a long time.
    bool read() {
        constexpr int longest = 10000;
        pollfd waited{m_master.number(), POLLIN, 0};
        if (poll(&waited, 1, longest) != 1) return false;
        char buffer[4096];
        const ssize_t length = ::read(m_master.number(), buffer, sizeof buffer);
        if (length <= 0) return false;
        m_screen.append(buffer, static_cast<std::size_t>(length));
        return true;
    }

    pid_t m_pid = -1;
    Descriptor m_master;
    std::string m_screen;
    std::size_t m_seen = 0;
};

/// What is typed at the first prompt, and the value that the script has then.
struct Answer {
    const char* name;
    const char* script;
    const char* typed;
    const char* value;
};

std::ostream& operator<<(std::ostream& out, const Answer& answer) { return out << answer.name; }

class TerminalTest : public testing::TestWithParam<Answer> {};

TEST_P(TerminalTest, takesTheAnswer) {
    TerminalRun run(GetParam().script);
    ASSERT_TRUE(run.shows("> ")) << run.screen();
    run.type(GetParam().typed);
    EXPECT_TRUE(run.shows(std::string(GetParam().value) + "\r\n")) << run.screen();
    EXPECT_EQ(run.end(), 0);
}

constexpr const char* one = R"(choose from list {"Ann", "Bob", "Zoë"} with prompt "Who?")";
constexpr const char* marked = R"(choose from list {"Ann", "Bob"} default items {"Bob"})";
constexpr const char* several =
    R"(choose from list {"Ann", "Bob", "Zoë"} with multiple selections allowed and empty selection allowed)";

INSTANTIATE_TEST_SUITE_P(Lists, TerminalTest,
                         testing::Values(Answer{"aNumber", one, "3\n", R"({"Zoë"})"},
                                         Answer{"zeroIsCancel", one, "0\n", "false"},
                                         Answer{"theEndOfInputIsCancel", one, "\x04", "false"},
                                         Answer{"theDefaultByReturn", marked, "\n", R"({"Bob"})"},
                                         Answer{"severalInTheirOrder", several, "3 1\n", R"({"Ann", "Zoë"})"},
                                         Answer{"none", several, "\n", "{}"}),
                         [](const auto& row) { return std::string(row.param.name); });

constexpr const char* question =
    R"(set r to display dialog "Who?" default answer "Ann" buttons {"Stop", "Go"} default button "Go")"
    "\n{button returned of r, text returned of r}";

INSTANTIATE_TEST_SUITE_P(
    Dialogs, TerminalTest,
    testing::Values(
        Answer{"aButtonByItsNumber", R"(button returned of (display dialog "Go on?"))", "2\n", R"("OK")"},
        Answer{"aButtonByItsName", R"(button returned of (display alert "Look"))", "OK\n", R"("OK")"},
        Answer{"theDefaultButtonByReturn", R"(button returned of (display dialog "Go on?"))", "\n",
               R"("OK")"},
        Answer{"anAlertsDefaultIsTheLast", R"(button returned of (display alert "x" buttons {"A", "B"}))",
               "\n", R"("B")"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(TerminalListTest, showsWhatThereIsToChoose) {
    TerminalRun run(
        R"(choose from list {"Ann", "Bob"} with title "Mail" with prompt "Who?" default items {"Bob"})");
    EXPECT_TRUE(run.shows("Mail\r\nWho?\r\n1   Ann\r\n2 * Bob\r\n0 Cancel\r\n> ")) << run.screen();
}

TEST(TerminalListTest, asksInTheLanguageOfTheUserAndTellsTheScriptTheSame) {
    TerminalRun run(R"(choose from list {"Ann"})", "de");
    EXPECT_TRUE(run.shows("Bitte treffen Sie Ihre Auswahl:\r\n1   Ann\r\n0 Abbrechen\r\n> ")) << run.screen();
    run.type("0\n");
    EXPECT_TRUE(run.shows("false\r\n")) << run.screen();
}

TEST(TerminalListTest, asksAgainUntilTheNumbersFit) {
    TerminalRun run(one);
    for (const char* wrong : {"4\n", "1 2\n", "Ann\n", "\n", "-1\n", "1x\n"}) {
        ASSERT_TRUE(run.shows("0 Cancel\r\n> ")) << run.screen();
        run.type(wrong);
    }
    ASSERT_TRUE(run.shows("0 Cancel\r\n> ")) << run.screen();
    run.type("2\n");
    EXPECT_TRUE(run.shows("{\"Bob\"}\r\n")) << run.screen();
    EXPECT_EQ(run.end(), 0);
}

TEST(TerminalDialogTest, theTextStandsOnALineOfItsOwnBeforeTheButton) {
    TerminalRun run(question);
    ASSERT_TRUE(run.shows("Who?\r\n[Ann] ")) << run.screen();
    run.type("Zoë\n");
    ASSERT_TRUE(run.shows("1 Stop   2 Go (Return)\r\n> ")) << run.screen();
    run.type("\n");
    EXPECT_TRUE(run.shows("{\"Go\", \"Zoë\"}\r\n")) << run.screen();
}

TEST(TerminalDialogTest, cancelEndsTheScript) {
    TerminalRun run("display dialog \"Go on?\"\nlog \"went on\"");
    ASSERT_TRUE(run.shows("1 Cancel   2 OK (Return)\r\n> ")) << run.screen();
    run.type("1\n");
    EXPECT_EQ(run.end(), 1);
    EXPECT_EQ(run.screen().find("went on"), std::string::npos);
}

TEST(TerminalDialogTest, aHiddenAnswerIsNotToBeSeen) {
    TerminalRun run(R"(text returned of (display dialog "Word?" default answer "old" with hidden answer))");
    ASSERT_TRUE(run.shows("[] ")) << run.screen();
    run.type("secret\n");
    ASSERT_TRUE(run.shows("> ")) << run.screen();
    EXPECT_EQ(run.screen().find("secret"), std::string::npos);
    EXPECT_EQ(run.screen().find("old"), std::string::npos);
    // What comes behind it is to be seen again.
    run.type("2\n");
    EXPECT_TRUE(run.shows("2\r\n\"secret\"\r\n")) << run.screen();
}

TEST(TerminalDialogTest, oneThatGivesUpWaitsNoLonger) {
    TerminalRun run(R"(gave up of (display dialog "x" giving up after 0.2))");
    EXPECT_TRUE(run.shows("true\r\n")) << run.screen();
    EXPECT_EQ(run.end(), 0);
}

TEST(TerminalDialogTest, withoutADefaultButtonReturnAsksAgain) {
    TerminalRun run(R"(button returned of (display dialog "x" buttons {"A", "B"}))");
    ASSERT_TRUE(run.shows("1 A   2 B\r\n> ")) << run.screen();
    run.type("\n");
    ASSERT_TRUE(run.shows("1 A   2 B\r\n> ")) << run.screen();
    run.type("1\n");
    EXPECT_TRUE(run.shows("\"A\"\r\n")) << run.screen();
}

TEST(TerminalDialogTest, withoutACancelButtonTheEndOfInputEndsTheScript) {
    TerminalRun run("display dialog \"x\" buttons {\"Stop\", \"Go\"}\nlog \"went on\"");
    ASSERT_TRUE(run.shows("> ")) << run.screen();
    run.type("\x04");
    EXPECT_EQ(run.end(), 1);
    EXPECT_EQ(run.screen().find("went on"), std::string::npos);
}

TEST(TerminalDialogTest, whatItShowsDoesNotActOnTheTerminal) {
    TerminalRun run(R"(display dialog ("a" & (ASCII character 27) & "[31mb"))");
    EXPECT_TRUE(run.shows("a [31mb\r\n")) << run.screen();
}

TEST(TerminalDialogTest, aNotificationHasAllItsTexts) {
    TerminalRun run(R"(display notification "text" with title "title" subtitle "sub")");
    EXPECT_TRUE(run.shows("title: sub: text\r\n")) << run.screen();
}

/// What a script waits for when a signal comes, and what the screen shows by then.
struct Wait {
    const char* name;
    const char* script;
    const char* shown;
};

std::ostream& operator<<(std::ostream& out, const Wait& wait) { return out << wait.name; }

class TerminalSignalTest : public testing::TestWithParam<Wait> {};

TEST_P(TerminalSignalTest, endsTheRun) {
    const std::string script = std::string("log \"begun\"\n") + GetParam().script;
    for (const int number : {SIGTERM, SIGHUP}) {
        TerminalRun run(script);
        ASSERT_TRUE(run.shows(GetParam().shown)) << run.screen();
        run.signal(number);
        EXPECT_EQ(run.end(), 128 + number) << run.screen();
    }
    TerminalRun run(script);
    ASSERT_TRUE(run.shows(GetParam().shown)) << run.screen();
    run.type("\x03");
    EXPECT_EQ(run.end(), 128 + SIGINT) << run.screen();
}

INSTANTIATE_TEST_SUITE_P(Waits, TerminalSignalTest,
                         testing::Values(Wait{"aQuestion", "display dialog \"x\"", "> "},
                                         Wait{"aList", R"(choose from list {"a"})", "> "},
                                         Wait{"aHiddenAnswer",
                                              R"(display dialog "x" default answer "" with hidden answer)",
                                              "[] "},
                                         Wait{"aPause", "delay 1000", "begun"},
                                         Wait{"nothing", "repeat\nend repeat", "begun"}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(TerminalDialogTest, withoutATerminalNobodyIsAsked) {
    TemporaryFolder folder;
    Child run(
        {"setsid", "-w", programs::scriptTool, "run", "-e", one},
        {.environment = {{"DISPLAY", ""}, {"WAYLAND_DISPLAY", ""}}, .outputFile = folder.file("output")});
    EXPECT_EQ(run.wait(), 1);
    EXPECT_EQ(contentOf(folder.file("output")),
              "-e:1:1: execution error: System Events got an error: No dialog can be shown here. (-10000)\n" +
                  std::string(one) + "\n^\nHint: Run the script in a terminal.\n");
}

}  // namespace

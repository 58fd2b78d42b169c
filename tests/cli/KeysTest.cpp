// SPDX-License-Identifier: MIT
//
// keyrill-script keys --press, at keys that somebody else presses.
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <ostream>

#include "display/KeyboardProbe.h"
#include "display/Typist.h"
#include "support/Child.h"
#include "support/Programs.h"
#include "support/WindowedProgram.h"
#include "support/XServer.h"

namespace {

constexpr const char* invitation = "Press a key.\n";

/// A key as the kernel calls it, and what is to be told of it.
struct Row {
    std::uint8_t key;
    const char* told;
};

std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.told; }

/// X key codes are those of the kernel, 8 higher.
std::uint8_t xCode(int key) { return static_cast<std::uint8_t>(key + 8); }

class KeysTest : public testing::Test {
  protected:
    std::unique_ptr<Child> wait() {
        auto program = std::make_unique<Child>(
            std::vector<std::string>{programs::scriptTool, "keys", "--press"},
            Child::Options{
                .environment = {{"DISPLAY", m_server.display()}, {"XDG_RUNTIME_DIR", m_folder.path()}},
                .outputFile = m_folder.file("output")});
        EXPECT_TRUE(eventually([this] { return output() == invitation; })) << output();
        return program;
    }
    std::string output() const { return contentOf(m_folder.file("output")); }
    const Typist& typist() const { return m_typist; }

    XServer m_server;

  private:
    TemporaryFolder m_folder;
    Hands m_hands{m_server.display()};
    Typist m_typist{m_hands, Typist::Gap(30)};
};

class KeyTest : public KeysTest, public testing::WithParamInterface<Row> {};

TEST_P(KeyTest, theNumberOfTheKeyIsTold) {
    const auto program = wait();
    typist().tap(xCode(GetParam().key));
    EXPECT_EQ(program->wait(), 0);
    EXPECT_EQ(output(), std::string(invitation) + GetParam().told + "\n");
}

INSTANTIATE_TEST_SUITE_P(Keys, KeyTest,
                         testing::Values(Row{KEY_A, "0\tA"}, Row{KEY_ENTER, "36\tReturn"},
                                         Row{KEY_TAB, "48\tTab"}, Row{KEY_SPACE, "49\tSpace"},
                                         Row{KEY_BACKSPACE, "51\tBackspace"}, Row{KEY_ESC, "53\tEscape"},
                                         Row{KEY_DELETE, "117\tDelete"}, Row{KEY_F5, "96\tF5"},
                                         Row{KEY_UP, "126\tUp Arrow"}, Row{KEY_KPPLUS, "69\tKeypad Plus"},
                                         Row{KEY_KPENTER, "76\tKeypad Enter"},
                                         Row{KEY_102ND, "10\tthe key beside left Shift"},
                                         Row{KEY_COMPOSE, "110\tMenu"}, Row{KEY_VOLUMEUP, "72\tVolume Up"}));

TEST_F(KeysTest, theNumberIsTheSameOnEveryLayout) {
    outputOf({"setxkbmap", "-layout", "fr"}, {{"DISPLAY", m_server.display()}});
    const auto program = wait();
    typist().tap(xCode(KEY_Q));
    EXPECT_EQ(program->wait(), 0);
    EXPECT_EQ(output(), std::string(invitation) + "12\tQ\n");
}

// Which key it is with, a modifier does not say; by itself it is waited with.
TEST_F(KeysTest, aModifierIsNoKeyByItself) {
    const auto program = wait();
    typist().stroke({xCode(KEY_LEFTSHIFT), xCode(KEY_A)});
    EXPECT_EQ(program->wait(), 0);
    EXPECT_EQ(output(), std::string(invitation) + "0\tA\n");
}

TEST_F(KeysTest, aSignalEndsIt) {
    const auto program = wait();
    program->signal(SIGINT);
    EXPECT_EQ(program->wait(), 128 + SIGINT);
    EXPECT_EQ(output(), invitation);
}

TEST_F(KeysTest, theEndOfTheServerEndsIt) {
    const auto program = wait();
    m_server.program().signal(SIGTERM);
    EXPECT_EQ(program->wait(), 1);
    EXPECT_EQ(output().rfind(std::string(invitation) + "keyrill-script: ", 0), 0U) << output();
}

/// xterm with a shell in which it is run, and then read what was typed.
class Shell : public WindowedProgram {
  public:
    explicit Shell(const std::string& display) : WindowedProgram(display) {
        const auto file = [this](const char* name) { return folder().file(name); };
        add({{"XDG_RUNTIME_DIR", folder().path()}, {"LC_ALL", "C.UTF-8"}});
        start({"xterm", "-T", name(), "-e", "sh", "-c",
               std::string("trap : INT; ") + programs::scriptTool + " keys --press >" + file("out") + " 2>" +
                   file("err") + "; echo $? >" + file("status") + "; head -n 1 >" + file("line")});
        findWindow(name());
        if (!eventually([this] { return outputs("getwindowfocus"); }))
            throw std::runtime_error("the terminal gets no focus");
    }
    std::string content(const char* name) const { return contentOf(folder().file(name)); }

  private:
    bool outputs(const char* question) const {
        run({"xdotool", "windowfocus", window()});
        return run({"xdotool", question}) == window() + "\n";
    }
};

class TerminalKeysTest : public testing::Test {
  protected:
    TerminalKeysTest() {
        EXPECT_TRUE(eventually([this] { return shell.content("err") == invitation; }))
            << shell.content("err");
    }

    XServer server;
    const KeyboardProbe probe{server.display()};
    Shell shell{server.display()};
    Hands hands{server.display()};
    Typist typist{hands, Typist::Gap(30)};
};

TEST_F(TerminalKeysTest, controlCEndsItWithNothingKept) {
    const std::string before = probe.held();
    typist.stroke({xCode(KEY_LEFTCTRL), xCode(KEY_C)});
    ASSERT_TRUE(eventually([this] { return shell.content("status") == "130\n"; })) << shell.content("status");
    EXPECT_EQ(shell.content("out"), "");
    EXPECT_EQ(shell.content("err"), invitation);
    EXPECT_EQ(probe.held(), before);
    typist.tap(xCode(KEY_X));
    typist.tap(xCode(KEY_ENTER));
    EXPECT_TRUE(eventually([this] { return shell.content("line") == "x\n"; })) << shell.content("line");
}

TEST_F(TerminalKeysTest, whatWasPressedIsNotTypedIntoTheTerminal) {
    typist.tap(xCode(KEY_A));
    ASSERT_TRUE(eventually([this] { return shell.content("status") == "0\n"; })) << shell.content("status");
    EXPECT_EQ(shell.content("out"), "0\tA\n");
    typist.tap(xCode(KEY_X));
    typist.tap(xCode(KEY_ENTER));
    EXPECT_TRUE(eventually([this] { return shell.content("line") == "x\n"; })) << shell.content("line");
}

class KeysWithoutDisplayTest : public testing::TestWithParam<const char*> {};

TEST_P(KeysWithoutDisplayTest, isToldInALine) {
    const TemporaryFolder folder;
    Child program(
        {programs::scriptTool, "keys", "--press"},
        {.environment = {{"DISPLAY", GetParam()}, {"WAYLAND_DISPLAY", ""}, {"XDG_SESSION_TYPE", ""}},
         .outputFile = folder.file("output")});
    EXPECT_EQ(program.wait(), 1);
    const std::string told = contentOf(folder.file("output"));
    EXPECT_EQ(told.rfind("keyrill-script: ", 0), 0U) << told;
    EXPECT_EQ(told.find('\n'), told.size() - 1) << told;
    EXPECT_EQ(told.find(invitation), std::string::npos) << told;
}

INSTANTIATE_TEST_SUITE_P(Displays, KeysWithoutDisplayTest, testing::Values("", ":4711"),
                         [](const auto& row) { return *row.param == '\0' ? "none" : "gone"; });

}  // namespace

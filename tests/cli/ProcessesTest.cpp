// SPDX-License-Identifier: MIT
//
// What a script is told of the programs that have a window, by what it types.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <utility>

#include "cli/Play.h"
#include "support/Terminal.h"
#include "support/XServer.h"

namespace {

class ProcessesTest : public testing::Test {
  protected:
    ProcessesTest() {
        m_manager = std::make_unique<Child>(
            std::vector<std::string>{"openbox", "--sm-disable"},
            Child::Options{.environment = {{"DISPLAY", m_server.display()}, {"HOME", m_folder.path()}},
                           .outputFile = m_folder.file("openbox")});
        // A window manager says so on the root window.
        const auto isReady = [this] {
            return outputOf({"xprop", "-root", "_NET_SUPPORTING_WM_CHECK"}, {{"DISPLAY", m_server.display()}})
                       .find("window id") != std::string::npos;
        };
        EXPECT_TRUE(eventually(isReady));
        for (const char* name : {"Front", "Lower", "Middle", "Back"}) {
            m_terminals.push_back(std::make_unique<Terminal>(
                m_server.display(),
                Terminal::Options{.xterm = {"-class", name, "-geometry", "60x20+100+100"}}));
        }
        // In no order of their ages and of their names, in neither direction.
        std::rotate(m_terminals.begin(), m_terminals.begin() + 2, m_terminals.end());
        std::swap(m_terminals[2], m_terminals[3]);
        for (const auto& terminal : m_terminals) {
            outputOf({"xdotool", "windowactivate", "--sync", terminal->window()},
                     {{"DISPLAY", m_server.display()}});
        }
        EXPECT_TRUE(eventually([this] { return areStackedInTurn() && m_terminals.back()->hasFocus(); }));
    }

    /// By the window manager's account.
    bool areStackedInTurn() const {
        std::ostringstream expected;
        const char* separator = "_NET_CLIENT_LIST_STACKING(WINDOW): window id # 0x";
        for (const auto& terminal : m_terminals) {
            expected << std::exchange(separator, ", 0x") << std::hex << std::stoul(terminal->window());
        }
        return outputOf({"xprop", "-root", "_NET_CLIENT_LIST_STACKING"}, {{"DISPLAY", m_server.display()}}) ==
               expected.str() + "\n";
    }

    /// Types what the expression gives, inside `tell`.
    void expectTyped(const std::string& expression, const std::string& text) const {
        Play play(m_server.display(),
                  "set text item delimiters to \",\"\ntell application \"System Events\"\nkeystroke (" +
                      expression + ") as text\nend tell\n");
        EXPECT_EQ(play.program().wait(), 0) << play.output();
        EXPECT_EQ(m_terminals.back()->typed(text.size()), text);
    }

    XServer m_server;
    TemporaryFolder m_folder;
    std::unique_ptr<Child> m_manager;
    /// The lowest first.
    std::vector<std::unique_ptr<Terminal>> m_terminals;
};

TEST_F(ProcessesTest, areNamedFromTheFrontOn) {
    expectTyped("name of every process", "Front,Lower,Back,Middle");
}

TEST_F(ProcessesTest, areAskedOneByOne) {
    expectTyped("name of every process whose name contains \"l\" and not frontmost", "Lower,Middle");
}

TEST_F(ProcessesTest, areAskedFromTheFrontOn) {
    expectTyped("name of every process whose name does not contain \"z\" and not frontmost",
                "Lower,Back,Middle");
}

TEST_F(ProcessesTest, areThereOrNot) {
    expectTyped(
        "{exists (process 1 whose name is \"lower\"), exists (processes whose name is \"nobody\"), "
        "(name of processes) contains \"MIDDLE\", count processes}",
        "true,false,true,4");
}

TEST_F(ProcessesTest, theOneThatIsAskedForComesToTheFront) {
    Play play(m_server.display(), R"(tell application "System Events"
    set frontmost of (first process whose name starts with "low") to true
    keystroke "typed"
    keystroke name of first process whose frontmost is true
end tell
)");
    EXPECT_EQ(play.program().wait(), 0) << play.output();
    EXPECT_EQ(m_terminals[2]->typed(10), "typedLower");
}

}  // namespace

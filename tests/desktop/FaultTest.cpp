// SPDX-License-Identifier: MIT
#include <signal.h>

#include <algorithm>
#include <fstream>

#include "desktop/DesktopTest.h"

namespace {

/// The processes whose parent is that one.
std::vector<pid_t> childrenOf(pid_t parent) {
    const std::string id = std::to_string(parent);
    std::ifstream file("/proc/" + id + "/task/" + id + "/children");
    std::vector<pid_t> children;
    for (pid_t child = 0; file >> child;) children.push_back(child);
    return children;
}

/// Not one that has ended and that nobody has asked for its status.
bool isRunning(pid_t process) {
    const std::string status = contentOf("/proc/" + std::to_string(process) + "/status");
    return !status.empty() && status.find("\nState:\tZ") == std::string::npos;
}

/// What the program relies on ends without a word while it runs.
class FaultTest : public testing::TestWithParam<TrayKind> {
  protected:
    FaultTest() {
        desktop.startBus();
        desktop.startWindowManager();
        desktop.startTray(GetParam());
    }

    static void kill(Child& program) {
        program.signal(SIGKILL);
        EXPECT_NE(program.wait(), -1);
    }
    /// Records and plays one key in a terminal.
    void expectWork() {
        const Terminal terminal(desktop.display());
        desktop.press("ctrl+super+r");
        desktop.press("x");
        desktop.press("ctrl+super+s");
        desktop.press("ctrl+super+p");
        EXPECT_EQ(terminal.typed(2), "xx");
    }

    Desktop desktop;
    std::optional<Keyrill> keyrill;
};

TEST_P(FaultTest, aKilledTrayWindowManagerOrSessionBusDoesNotEndIt) {
    keyrill.emplace(desktop);
    ASSERT_TRUE(eventually([this] { return desktop.tray().icon().has_value(); }));
    desktop.killTray();
    expectWork();
    kill(desktop.windowManager());
    expectWork();
    kill(desktop.bus().daemon());
    expectWork();
    EXPECT_TRUE(keyrill->child().isRunning());
}

/// Without a tray; in a pause of a macro, and between two.
class LostDisplayTest : public testing::TestWithParam<bool> {};

TEST_P(LostDisplayTest, endsItAndWhatItStarted) {
    Desktop desktop;
    desktop.startWindowManager();
    const std::string script = "tell application \"System Events\" to key code 0\n";
    Keyrill keyrill(desktop, GetParam() ? script + "delay 1000\n" : script);
    {
        const Terminal terminal(desktop.display());
        desktop.press("ctrl+super+p");
        EXPECT_EQ(terminal.typed(1), "a");
    }
    const std::vector<pid_t> children = childrenOf(keyrill.child().pid());
    EXPECT_FALSE(children.empty()) << "the guard should be among them";
    desktop.server().signal(SIGKILL);
    EXPECT_EQ(keyrill.child().wait(), 1);
    for (const pid_t child : children) EXPECT_TRUE(eventually([&] { return !isRunning(child); })) << child;
    // One line says why.
    const std::string output = keyrill.output();
    EXPECT_EQ(std::count(output.begin(), output.end(), '\n'), 1) << output;
}

INSTANTIATE_TEST_SUITE_P(Moments, LostDisplayTest, testing::Bool(),
                         [](const testing::TestParamInfo<bool>& moment) {
                             return moment.param ? "inAPause" : "betweenMacros";
                         });

INSTANTIATE_TEST_SUITE_P(Trays, FaultTest, testing::Values(TrayKind::docking, TrayKind::statusNotifier),
                         nameOfParameter<TrayKind>);

}  // namespace

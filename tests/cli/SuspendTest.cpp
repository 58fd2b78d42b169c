// SPDX-License-Identifier: MIT
//
// keyrill-script run that is stopped for a while, as Ctrl+Z does it, and goes on.
#include <gtest/gtest.h>
#include <signal.h>

#include <string>

#include "cli/Play.h"
#include "display/Hands.h"
#include "display/KeyboardProbe.h"
#include "support/Keys.h"
#include "support/Terminal.h"
#include "support/XServer.h"

namespace {

class SuspendTest : public testing::Test {
  protected:
    static bool isStopped(pid_t process) {
        const std::string status = contentOf("/proc/" + std::to_string(process) + "/status");
        return status.find("\nState:\tT") != std::string::npos;
    }
    static void suspend(Play& play) {
        play.program().signal(SIGTSTP);
        ASSERT_TRUE(eventually([&] { return isStopped(play.program().pid()); }));
    }

    XServer server;
    KeyboardProbe probe{server.display()};
    Hands hands{server.display()};
    Terminal terminal{server.display()};
};

TEST_F(SuspendTest, leavesNoKeyHeldAndLocksAsTheyWere) {
    hands.lock(xmask::capsLock, true);
    hands.finish();
    Play play(server.display(), R"(tell application "System Events"
keystroke "a"
key down {command, shift}
delay 1000
end tell
)");
    EXPECT_EQ(terminal.typed(1), "a");
    ASSERT_TRUE(eventually([this] { return probe.held() != "keys:, modifiers: 0x0"; }));
    suspend(play);
    EXPECT_EQ(probe.words(), "keys:, modifiers: 0x0, locked: 0x2, group: 0");
    play.program().signal(SIGCONT);
    EXPECT_TRUE(eventually([this] { return probe.held() == "keys: 50 133, modifiers: 0x41"; }))
        << probe.held();
    play.program().signal(SIGTERM);
    EXPECT_EQ(play.program().wait(), 128 + SIGTERM);
    EXPECT_EQ(probe.words(), "keys:, modifiers: 0x0, locked: 0x2, group: 0");
}

TEST_F(SuspendTest, typesTheRestOfATextWhenItGoesOn) {
    Play play(server.display(), R"(tell application "System Events"
repeat 200 times
keystroke "Word. "
delay 0.005
end repeat
end tell
)");
    terminal.typed(60);
    suspend(play);
    hands.lock(xmask::capsLock, true);
    hands.finish();
    const std::size_t before = terminal.typed().size();
    play.program().signal(SIGCONT);
    EXPECT_EQ(play.program().wait(), 0) << play.output();
    EXPECT_LT(before, 1200U);
    std::string expected;
    for (int word = 0; word < 200; ++word) expected += "Word. ";
    EXPECT_EQ(terminal.typed(1200), expected);
    EXPECT_EQ(probe.words(), "keys:, modifiers: 0x0, locked: 0x2, group: 0");
}

TEST_F(SuspendTest, stopsAScriptThatOnlyThinks) {
    Play play(server.display(), "repeat 100000000 times\nend repeat\n");
    // Past the start, where nothing is to be given back yet and SIGTSTP is the system's.
    ASSERT_TRUE(eventually([&] {
        return contentOf("/proc/" + std::to_string(play.program().pid()) + "/status").find("SigCgt:") !=
               std::string::npos;
    }));
    suspend(play);
    play.program().signal(SIGCONT);
    play.program().signal(SIGTERM);
    EXPECT_NE(play.program().wait(), -1);
}

}  // namespace

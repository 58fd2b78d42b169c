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
repeat 5000 times
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
    // What was on its way to the terminal, and words of afterwards.
    const std::string typed = terminal.typed(before + 300);
    play.program().signal(SIGTERM);
    EXPECT_EQ(play.program().wait(), 128 + SIGTERM) << play.output();
    std::string expected;
    while (expected.size() < typed.size()) expected += "Word. ";
    EXPECT_EQ(typed, expected.substr(0, typed.size()));
    EXPECT_EQ(probe.words(), "keys:, modifiers: 0x0, locked: 0x2, group: 0");
}

TEST_F(SuspendTest, stopsAScriptThatOnlyThinks) {
    Play play(server.display(), R"(tell application "System Events"
key down shift
keystroke "A"
end tell
repeat
end repeat
)");
    EXPECT_EQ(terminal.typed(1), "A");
    EXPECT_EQ(probe.awaitHeld("keys: 50, modifiers: 0x1"), "keys: 50, modifiers: 0x1");
    suspend(play);
    EXPECT_EQ(probe.held(), "keys:, modifiers: 0x0");
    play.program().signal(SIGCONT);
    play.program().signal(SIGTERM);
    EXPECT_EQ(play.program().wait(), 128 + SIGTERM);
    EXPECT_EQ(probe.held(), "keys:, modifiers: 0x0");
}

}  // namespace

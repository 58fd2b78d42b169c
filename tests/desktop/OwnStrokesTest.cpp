// SPDX-License-Identifier: MIT
#include <signal.h>

#include <algorithm>

#include "desktop/DesktopTest.h"

namespace {

class OwnStrokesTest : public DesktopTest {
  protected:
    Terminal terminal{desktop.display()};
};

TEST_F(OwnStrokesTest, aScriptThatTypesThePlayCombinationIsPlayedOnceAndEnds) {
    const Keyrill keyrill(desktop,
                          R"(tell application "System Events"
	key code 0
	key code 35 using {control down, command down}
	key code 11
end tell
)");
    play();
    // Control+P reaches the terminal as a control character of its own, or with Super as an escape sequence;
    // what counts is that a and b come once.
    ASSERT_TRUE(eventually([this] { return terminal.typed().ends_with('b'); }));
    press("period");
    ASSERT_TRUE(eventually([this] { return terminal.typed().ends_with('.'); }));
    const std::string received = terminal.typed();
    EXPECT_EQ(std::count(received.begin(), received.end(), 'a'), 1) << received;
    EXPECT_EQ(std::count(received.begin(), received.end(), 'b'), 1) << received;
    EXPECT_EQ(desktop.keysDown(), std::vector<std::string>());
}

TEST_F(OwnStrokesTest, aTerminatedRunReleasesWhatItHolds) {
    Keyrill keyrill(desktop,
                    R"(tell application "System Events"
	key code 0
	key down shift
	delay 1000
end tell
)");
    play();
    EXPECT_EQ(terminal.typed(1), "a");
    ASSERT_TRUE(eventually([this] { return !desktop.keysDown().empty(); }));
    keyrill.child().signal(SIGTERM);
    EXPECT_EQ(keyrill.child().wait(std::chrono::seconds(5)), 0);
    EXPECT_EQ(desktop.keysDown(), std::vector<std::string>());
}

}  // namespace

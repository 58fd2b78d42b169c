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
                          "tell application \"System Events\"\n"
                          "\tkey code 0\n"
                          "\tkey code 35 using {control down, command down}\n"
                          "\tkey code 11\n"
                          "end tell\n");
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
                    "tell application \"System Events\"\n"
                    "\tkey code 0\n"
                    "\tkey down shift\n"
                    "\tdelay 1000\n"
                    "end tell\n");
    play();
    EXPECT_EQ(terminal.typed(1), "a");
    ASSERT_TRUE(eventually([this] { return !desktop.keysDown().empty(); }));
    keyrill.child().signal(SIGTERM);
    EXPECT_EQ(keyrill.child().wait(std::chrono::seconds(5)), 0);
    EXPECT_EQ(desktop.keysDown(), std::vector<std::string>());
}

}  // namespace

// SPDX-License-Identifier: MIT
#include <signal.h>

#include <algorithm>

#include "desktop/DesktopTest.h"
#include "display/Typist.h"

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

TEST_F(OwnStrokesTest, aScriptThatHoldsThePlayCombinationLosesNothingAfterItAndIsPlayedAgainByHand) {
    desktop.run({"xset", "r", "rate", "100", "50"});
    const Keyrill keyrill(desktop,
                          R"(tell application "System Events"
	key code 0
	key down control
	key down command
	key down "p"
	delay 0.3
	key up "p"
	key up command
	key up control
	keystroke "bc"
end tell
)");
    const Hands hands(desktop.display());
    const Typist typist(hands, std::chrono::milliseconds(30));
    for (const std::ptrdiff_t plays : {1, 2}) {
        typist.stroke({xkey::control, xkey::super, xkey::p});
        ASSERT_TRUE(eventually([&] {
            const std::string typed = terminal.typed();
            return std::count(typed.begin(), typed.end(), 'c') == plays;
        })) << terminal.typed();
        const std::string received = terminal.typed();
        EXPECT_EQ(std::count(received.begin(), received.end(), 'a'), plays) << received;
        EXPECT_EQ(std::count(received.begin(), received.end(), 'b'), plays) << received;
        // Held for 0.3 s, it repeats after 0.1 s each 0.02 s.
        EXPECT_GE(std::count(received.begin(), received.end(), '\x10'), 3 * plays) << received;
    }
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

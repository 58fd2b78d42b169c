// SPDX-License-Identifier: MIT
#include "desktop/DesktopTest.h"
#include "display/NestedServers.h"

namespace {

/// A million repetitions are played; the user, at a keyboard that is none of XTEST's, ends them.
class CancelTest : public testing::Test {
  protected:
    static constexpr std::chrono::milliseconds bound{500};

    CancelTest() {
        // One press, one Escape.
        outputOf({"xset", "r", "off"}, {{"DISPLAY", servers.outerDisplay()}});
        desktop.run({"xdotool", "key", "ctrl+super+m"});
        const ScreenWindow prompt = desktop.awaitWindow(title::prompt);
        EXPECT_TRUE(eventually([&] { return desktop.hasFocus(prompt); }));
        desktop.run({"xdotool", "type", "1000000"});
        desktop.run({"xdotool", "key", "Return"});
        terminal.typed(20);
    }

    /// What the terminal receives after the bound, a full stop from another program included.
    std::string receivedAfterTheBound() const {
        const auto end = std::chrono::steady_clock::now() + bound;
        eventually([end] { return std::chrono::steady_clock::now() >= end; });
        const std::size_t sofar = terminal.typed().size();
        servers.program().tap(xkey::period);
        servers.program().finish();
        EXPECT_TRUE(eventually([this] { return terminal.typed().ends_with('.'); }));
        return terminal.typed().substr(sofar);
    }

    NestedServers servers;
    Desktop desktop{servers.display()};
    Terminal terminal{desktop.display()};
    Keyrill keyrill{desktop, "tell application \"System Events\" to key code 0\n"};
};

TEST_F(CancelTest, aHeldEscapeEndsAMillionRepetitions) {
    servers.user().press(xkey::escape);
    servers.finish();
    EXPECT_EQ(receivedAfterTheBound(), ".");
    servers.user().release(xkey::escape);
    servers.finish();
    EXPECT_EQ(desktop.keysDown(), std::vector<std::string>());
}

TEST_F(CancelTest, theStopCombinationEndsAMillionRepetitions) {
    servers.user().press(xkey::control);
    servers.user().press(xkey::super);
    servers.user().tap(xkey::s);
    servers.user().release(xkey::super);
    servers.user().release(xkey::control);
    servers.finish();
    EXPECT_EQ(receivedAfterTheBound(), ".");
    EXPECT_EQ(desktop.keysDown(), std::vector<std::string>());
}

}  // namespace

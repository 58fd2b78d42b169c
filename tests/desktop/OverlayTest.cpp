// SPDX-License-Identifier: MIT
#include "desktop/DesktopTest.h"

namespace {

class OverlayTest : public DesktopTest {
  protected:
    Terminal terminal{desktop.display()};
    Keyrill keyrill{desktop};
};

// 420 by 60, 10 from the right and 30 from the top of a screen of 1280 by 800: its left edge is at 850, and
// the recording mark lies 24 behind it, at half its height.
constexpr int markX = 874;
constexpr int markY = 60;

TEST_F(OverlayTest, showsTheRecordingMarkWhileRecording) {
    record();
    EXPECT_TRUE(eventually([this] { return desktop.colourAt(markX, markY) == "#E5484D"; }));
    stop();
    EXPECT_TRUE(eventually([this] { return desktop.colourAt(markX, markY) == "#000000"; }));
}

TEST_F(OverlayTest, leavesTheFocusAndTheClicksToOthers) {
    record();
    ASSERT_TRUE(eventually([this] { return desktop.shows(title::overlay); }));
    press("x");
    EXPECT_EQ(terminal.typed(1), "x");
    desktop.run({"xdotool", "mousemove", std::to_string(markX), std::to_string(markY)});
    const std::string under = desktop.run({"xdotool", "getmouselocation", "--shell"});
    EXPECT_EQ(under.find("WINDOW=" + desktop.window(title::overlay)), std::string::npos) << under;
    EXPECT_TRUE(terminal.hasFocus());
}

TEST_F(OverlayTest, liesAboveAFullscreenWindow) {
    const std::string window = desktop.run({"xdotool", "getactivewindow"});
    record();
    ASSERT_TRUE(eventually([this] { return desktop.shows(title::overlay); }));
    desktop.run({"xdotool", "key", "alt+F11"});
    desktop.run({"xdotool", "windowsize", "--sync", window.substr(0, window.find('\n')), "100%", "100%"});
    desktop.run({"xdotool", "windowmove", window.substr(0, window.find('\n')), "0", "0"});
    press("x");
    EXPECT_TRUE(eventually([this] { return desktop.colourAt(markX, markY) == "#E5484D"; }));
}

}  // namespace

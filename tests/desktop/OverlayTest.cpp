// SPDX-License-Identifier: MIT
#include <regex>
#include <tuple>

#include "desktop/DesktopTest.h"

namespace {

/// Under each window manager, with a compositor and without, at the usual scale and at twice of it; over a
/// terminal that fills the screen.
class OverlayTest : public testing::TestWithParam<std::tuple<WindowManager, bool, int>> {
  protected:
    OverlayTest() {
        desktop.startWindowManager(std::get<0>(GetParam()));
        if (std::get<1>(GetParam())) desktop.startCompositor();
        desktop.setEnvironment("QT_SCALE_FACTOR", std::to_string(scale()));
        terminal.emplace(desktop.display(), Terminal::Options{.xterm = {"-fullscreen", "-bg", "yellow"},
                                                              .typesMouseButtons = true});
        keyrill.emplace(desktop);
    }

    static int scale() { return std::get<2>(GetParam()); }
    /// Whether something is painted over the terminal at the overlay's left.
    bool isOnTop(const ScreenWindow& overlay) const {
        return desktop.colourAt(overlay.x + overlay.height / 2, overlay.middleY()) != "#FFFF00";
    }
    /// What has been typed, the mouse's buttons left out, and these alone.
    std::string typedText() const { return std::regex_replace(terminal->typed(), buttons, ""); }
    std::string typedButtons() const {
        const std::string typed = terminal->typed();
        std::string result;
        for (std::sregex_iterator at(typed.begin(), typed.end(), buttons), end; at != end; ++at)
            result += (*at)[1];
        return result;
    }

    const std::regex buttons{"\x1b\\[<0;[0-9]+;[0-9]+([Mm])"};
    Desktop desktop;
    std::optional<Terminal> terminal;
    std::optional<Keyrill> keyrill;
};

TEST_P(OverlayTest, leavesKeysAndClicksToWhatLiesBelow) {
    const std::string text = "the quick brown fox jumps over the lazy dog";
    desktop.press("ctrl+super+r");
    // While the overlay fades in, and while it is clicked on.
    Child hands({"xdotool", "type", "--delay", "10", text}, desktop.options("hands.log"));
    const ScreenWindow overlay = desktop.awaitWindow(title::overlay);
    EXPECT_EQ(overlay.x + overlay.width, 1280 - 10 * scale());
    EXPECT_EQ(overlay.y, 30 * scale());
    desktop.click(overlay.middleX(), overlay.middleY());
    EXPECT_EQ(hands.wait(), 0);
    EXPECT_TRUE(eventually([&] { return isOnTop(overlay); }));
    EXPECT_TRUE(terminal->hasFocus());
    desktop.press("ctrl+super+s");
    desktop.run({"xdotool", "type", "--delay", "0", text});
    EXPECT_TRUE(eventually([&] { return typedText() == text + text; })) << typedText();
    EXPECT_TRUE(eventually([&] { return typedButtons() == "Mm"; })) << typedButtons();
    EXPECT_TRUE(terminal->hasFocus());
    EXPECT_TRUE(eventually([&] { return !desktop.shows(title::overlay) && !isOnTop(overlay); }));
    desktop.press("ctrl+super+p");
    EXPECT_TRUE(eventually([&] { return typedText() == text + text + text; })) << typedText();
}

TEST_P(OverlayTest, comesUpAgainWithEachKey) {
    desktop.press("ctrl+super+r");
    const ScreenWindow overlay = desktop.awaitWindow(title::overlay);
    EXPECT_TRUE(eventually([&] { return isOnTop(overlay); }));
    desktop.run({"xdotool", "windowraise", terminal->window()});
    desktop.press("x");
    EXPECT_TRUE(eventually([&] { return isOnTop(overlay); }));
    EXPECT_EQ(terminal->typed(1), "x");
}

/// Recorded from a terminal whose own text is elsewhere.
class OverlayTextTest : public DesktopTest {
  protected:
    ScreenWindow startRecording() const {
        record();
        return desktop.awaitWindow(title::overlay);
    }
    void endRecording() const {
        stop();
        ASSERT_TRUE(eventually([this] { return !desktop.shows(title::overlay); }));
    }
    /// What is painted in the window's place, as a number.
    std::string pictureOf(const ScreenWindow& window) const {
        const std::string place = std::to_string(window.width) + "x" + std::to_string(window.height) + "+" +
                                  std::to_string(window.x) + "+" + std::to_string(window.y);
        return desktop.run({"sh", "-c", "import -window root -crop " + place + " +repage rgb:- | md5sum"});
    }
    /// When it has faded in over what was there before.
    std::string lastingPictureOf(const ScreenWindow& window, const std::string& before) const {
        std::string last;
        EXPECT_TRUE(eventually([&] {
            const std::string now = pictureOf(window);
            return std::exchange(last, now) == now && now != before;
        }));
        return last;
    }
    /// Where the overlay comes.
    static ScreenWindow place() {
        ScreenWindow window;
        window.width = 420;
        window.height = 60;
        window.x = 1280 - 10 - window.width;
        window.y = 30;
        return window;
    }

    Terminal terminal{desktop.display()};
    Keyrill keyrill{desktop};
};

TEST_F(OverlayTextTest, showsNothingOfTheRecordingBefore) {
    const std::string nothing = pictureOf(place());
    const ScreenWindow first = startRecording();
    ASSERT_EQ(std::tuple(first.x, first.y, first.width, first.height),
              std::tuple(place().x, place().y, place().width, place().height));
    const std::string empty = lastingPictureOf(first, nothing);
    for (const char* key : {"x", "y", "z"}) press(key);
    EXPECT_EQ(terminal.typed(3), "xyz");
    EXPECT_NE(lastingPictureOf(first, empty), empty);
    endRecording();
    ASSERT_TRUE(eventually([&] { return pictureOf(place()) == nothing; }));
    const ScreenWindow second = startRecording();
    EXPECT_EQ(lastingPictureOf(second, nothing), empty);
    press("x");
    EXPECT_NE(lastingPictureOf(second, empty), empty);
}

std::string nameOfDesktop(const testing::TestParamInfo<std::tuple<WindowManager, bool, int>>& info) {
    const auto& [manager, composited, scale] = info.param;
    return nameOf(manager) + (composited ? "Composited" : "") + std::to_string(scale) + "x";
}

INSTANTIATE_TEST_SUITE_P(Desktops, OverlayTest,
                         testing::Combine(testing::Values(WindowManager::openbox, WindowManager::xfwm4),
                                          testing::Bool(), testing::Values(1, 2)),
                         nameOfDesktop);

}  // namespace

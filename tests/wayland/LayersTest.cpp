// SPDX-License-Identifier: MIT
//
// The overlay and the prompt under sway, judged by pictures of the screen and by the terminal that they lie
// above.
#include <signal.h>

#include "compositor/WaylandMouse.h"
#include "wayland/SwayScreenTest.h"

namespace {

constexpr std::uint8_t three = 12;

class LayersTest : public SwayScreenTest {
  protected:
    using SwayScreenTest::SwayScreenTest;

    std::unique_ptr<Child> startRecorder(const std::string& text) { return start({KEYRILL_RECORDER, text}); }
    void openPrompt() {
        strokeHotKey(xkey::m);
        ASSERT_TRUE(eventually([this] { return !hasWindowKeyboard(); }));
    }
};

TEST_F(LayersTest, theOverlayLiesAtTheUpperRightAboveAFullScreen) {
    const Foot foot(sway());
    const ScreenPicture before = pictureWithFullScreen();
    const auto recorder = startRecorder("hello");
    // 10 pixels from the right, 30 from the top.
    EXPECT_EQ(changedArea(before), (ScreenArea{1024 - 10 - 420, 30, 420, 60})) << log();
    recorder->signal(SIGTERM);
    recorder->wait();
    EXPECT_TRUE(eventually([&] { return !ScreenPicture(sway()).differsFrom(before); }));
}

TEST_F(LayersTest, theOverlayLeavesTheKeysToTheTerminal) {
    const Foot foot(sway());
    const ScreenPicture before = pictureWithTerminalsAt({{512, 320}, {1000, 60}});
    const auto recorder = startRecorder("hello");
    std::string typed;
    // From before it comes until after it has come.
    do {
        hands().stroke({xkey::a});
        typed += 'a';
    } while (!ScreenPicture(sway()).differsFrom(before) && typed.size() < 1000);
    EXPECT_TRUE(ScreenPicture(sway()).differsFrom(before)) << "the overlay has not come: " << log();
    hands().stroke({xkey::z});
    EXPECT_EQ(foot.typed(typed.size() + 1), typed + "z");
    EXPECT_TRUE(hasWindowKeyboard());
}

TEST_F(LayersTest, theOverlayLeavesClicksToWhatLiesBelow) {
    const Foot below(sway());
    const Foot focused(sway());
    sway().message({"[app_id=\"" + below.program() + "\"]", "move", "right"});
    focused.focus();
    const ScreenPicture before = pictureWithTerminalsAt({{200, 320}, {900, 320}});
    const auto recorder = startRecorder("hello");
    ASSERT_TRUE(changedArea(before));
    hands().stroke({xkey::a});
    EXPECT_EQ(focused.typed(1), "a");
    sway().message({"seat", "-", "cursor", "set", "1000", "60"});
    sway().message({"seat", "-", "cursor", "press", "button1"});
    sway().message({"seat", "-", "cursor", "release", "button1"});
    hands().stroke({xkey::z});
    EXPECT_EQ(below.typed(1), "z");
}

class LayersSharpTest : public LayersTest {
  protected:
    LayersSharpTest() : LayersTest("output HEADLESS-1 scale 2") {}
};

TEST_F(LayersSharpTest, theOverlayUsesAllPixelsOfASharpScreen) {
    const Foot foot(sway());
    const ScreenPicture before = pictureWithTerminalsAt({{512, 320}, {1000, 60}});
    const auto recorder = startRecorder("illill");
    const ScreenArea area{1024 - 2 * (10 + 420), 2 * 30, 2 * 420, 2 * 60};
    ASSERT_EQ(changedArea(before), area) << log();
    // A picture that was enlarged has no line that is one pixel wide.
    const ScreenPicture now(sway());
    int thinLines = 0;
    for (int y = area.y; y < area.y + area.height; ++y) {
        for (int x = area.x + 1; x + 1 < area.x + area.width; ++x) {
            const auto lightness = [&](int place) { return static_cast<int>(now.at(place, y)[1]); };
            if (std::min(std::abs(lightness(x) - lightness(x - 1)),
                         std::abs(lightness(x) - lightness(x + 1))) > 60)
                ++thinLines;
        }
    }
    EXPECT_GT(thinLines, 50);
}

TEST_F(LayersTest, theOverlayComesToTheScreenThatTheUserIsAt) {
    sway().message({"create_output"});
    sway().message({"output", "HEADLESS-2", "resolution", "800x600", "position", "1024", "0"});
    sway().message({"focus", "output", "HEADLESS-2"});
    const ScreenPicture before(sway(), "HEADLESS-2");
    const ScreenPicture otherBefore(sway());
    const auto recorder = startRecorder("hello");
    EXPECT_EQ(changedArea(before, "HEADLESS-2"), (ScreenArea{800 - 10 - 420, 30, 420, 60})) << log();
    EXPECT_FALSE(ScreenPicture(sway()).differsFrom(otherBefore));
}

TEST_F(LayersTest, thePromptIsPlayedFromAboveAFullScreen) {
    const Foot foot(sway());
    const auto program = startProgram();
    foot.focus();
    const ScreenPicture before = pictureWithFullScreen();
    openPrompt();
    const auto area = changedArea(before);
    ASSERT_TRUE(area);
    EXPECT_EQ(area->x, (1024 - area->width) / 2);
    EXPECT_EQ(area->y, (640 - area->height) / 3);
    hands().stroke({three});
    hands().stroke({xkey::returnKey});
    EXPECT_EQ(foot.typed(6), "ababab");
    EXPECT_TRUE(eventually([&] { return !ScreenPicture(sway()).differsFrom(before); }));
    hands().stroke({xkey::z});
    EXPECT_EQ(foot.typed(7), "abababz");
}

TEST_F(LayersTest, escapeGivesTheKeyboardBack) {
    const Foot foot(sway());
    const auto program = startProgram();
    foot.focus();
    openPrompt();
    hands().stroke({xkey::escape});
    EXPECT_TRUE(eventually([this] { return hasWindowKeyboard(); }));
    hands().stroke({xkey::z});
    EXPECT_EQ(foot.typed(1), "z");
}

TEST_F(LayersTest, aClickOnThePromptsButtonPlays) {
    WaylandMouse mouse(sway().socket());
    const Foot foot(sway());
    const auto program = startProgram();
    foot.focus();
    const ScreenPicture before = pictureWithFullScreen();
    openPrompt();
    const auto area = changedArea(before);
    ASSERT_TRUE(area);
    // The button is at its right end.
    mouse.click(static_cast<unsigned>(area->x + area->width - 40),
                static_cast<unsigned>(area->y + area->height / 2), 1024, 640);
    EXPECT_EQ(foot.typed(2), "ab");
}

/// Where there is no X server.
class WaylandOnlyTest : public LayersTest {
  protected:
    WaylandOnlyTest() : LayersTest({}, "keystroke \"ab\"", XServer::isNot) {}
};

TEST_F(WaylandOnlyTest, thePromptIsPlayed) {
    const Foot foot(sway());
    const auto program = startProgram();
    foot.focus();
    openPrompt();
    hands().stroke({three});
    hands().stroke({xkey::returnKey});
    EXPECT_EQ(foot.typed(6), "ababab");
}

TEST_F(WaylandOnlyTest, theFirstStartLeadsToThePreferences) {
    forgetSettings();
    const auto program = startProgram();
    ASSERT_TRUE(eventually([this] { return shows("Welcome to Keyrill"); })) << log();
    sway().message({"[title=\"^Welcome to Keyrill$\"]", "kill"});
    EXPECT_TRUE(eventually([this] { return shows("Keyrill Preferences"); })) << log();
}

}  // namespace

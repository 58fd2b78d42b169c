// SPDX-License-Identifier: MIT
//
// The overlay and the prompt under sway, judged by pictures of the screen and by the terminal that they lie
// above.
#include <gtest/gtest.h>
#include <signal.h>

#include <filesystem>
#include <fstream>

#include "compositor/Foot.h"
#include "compositor/ScreenPicture.h"
#include "compositor/WaylandHands.h"
#include "support/Keys.h"

namespace {

constexpr std::uint8_t three = 12;
/// The small window that stands in for a tray is where nobody looks.
const std::string controlWindowAway = "for_window [title=\"^Keyrill$\"] move container to workspace 9\n";

class LayersTest : public testing::Test {
  protected:
    explicit LayersTest(const std::string& configuration = {}, bool hasXServer = true)
        : m_sway({.configuration = controlWindowAway + configuration, .hasXServer = hasXServer}),
          m_hands(m_sway.socket()) {
        std::filesystem::create_directories(m_folder.file("presets/keyrill"));
        std::filesystem::copy_file(KEYRILL_PRESETS, m_folder.file("presets/keyrill/keyrill.conf"));
        std::filesystem::create_directories(m_folder.file("home/.config/keyrill"));
        std::ofstream(m_folder.file("home/.config/keyrill/keyrill.conf")) << "[Settings]\nnotFirstRun=true\n";
        std::ofstream(m_folder.file("macro.keyrill"))
            << "tell application \"System Events\"\nkeystroke \"ab\"\nend tell\n";
    }

    std::unique_ptr<Child> start(const std::vector<std::string>& command) {
        auto environment = m_sway.environment();
        environment["HOME"] = m_folder.file("home");
        environment["XDG_CONFIG_DIRS"] = m_folder.file("presets");
        environment["XDG_CONFIG_HOME"] = "";
        environment["XDG_DATA_HOME"] = "";
        environment["LC_ALL"] = "C.UTF-8";
        environment["DBUS_SESSION_BUS_ADDRESS"] = "disabled:";
        return std::make_unique<Child>(
            command, Child::Options{.environment = environment, .outputFile = m_folder.file("log")});
    }
    /// The program, with a macro that types "ab"; it has its combinations.
    std::unique_ptr<Child> startProgram() {
        auto program = start({KEYRILL_PRODUCT, m_folder.file("macro.keyrill")});
        const bool isUp = eventually([this] { return m_sway.tries({"[title=\"^Keyrill$\"] nop"}); },
                                     std::chrono::seconds(30));
        EXPECT_TRUE(isUp) << contentOf(m_folder.file("log"));
        return program;
    }
    std::unique_ptr<Child> startRecorder(const std::string& text) { return start({KEYRILL_RECORDER, text}); }

    void openPrompt() {
        m_hands.stroke({xkey::control, xkey::super, xkey::m});
        ASSERT_TRUE(eventually([this] { return !hasWindowKeyboard(); }));
    }
    /// Whether keys go to a window, not to a layer.
    bool hasWindowKeyboard() const {
        return m_sway.message({"-t", "get_seats"}).find("\"focus\": 0,") == std::string::npos;
    }
    /// Where the screen is another than in the picture, once it has been there for two looks: fades are over.
    std::optional<ScreenArea> changedArea(const ScreenPicture& before,
                                          const std::string& screen = "HEADLESS-1") const {
        std::optional<ScreenPicture> last;
        eventually([&] {
            std::optional<ScreenPicture> now(std::in_place, m_sway, screen);
            const bool isSettled = last && now->differsFrom(before) && !now->differsFrom(*last);
            last = std::move(now);
            return isSettled;
        });
        return last->differsFrom(before);
    }

    const Sway& sway() const { return m_sway; }
    WaylandHands& hands() { return m_hands; }
    std::string log() const { return contentOf(m_folder.file("log")); }

  private:
    TemporaryFolder m_folder;
    Sway m_sway;
    WaylandHands m_hands;
};

TEST_F(LayersTest, theOverlayLiesAtTheUpperRightAboveAFullScreen) {
    const Foot foot(sway());
    sway().message({"fullscreen", "enable"});
    const ScreenPicture before(sway());
    const auto recorder = startRecorder("hello");
    // 10 pixels from the right, 30 from the top.
    EXPECT_EQ(changedArea(before), (ScreenArea{1024 - 10 - 420, 30, 420, 60})) << log();
    recorder->signal(SIGTERM);
    recorder->wait();
    EXPECT_TRUE(eventually([&] { return !ScreenPicture(sway()).differsFrom(before); }));
}

TEST_F(LayersTest, theOverlayLeavesTheKeysToTheTerminal) {
    const Foot foot(sway());
    const ScreenPicture before(sway());
    const auto recorder = startRecorder("hello");
    std::string typed;
    // From before it comes until after it has come.
    do {
        hands().stroke({xkey::a});
        typed += 'a';
    } while (!ScreenPicture(sway()).differsFrom(before) && typed.size() < 1000);
    hands().stroke({xkey::z});
    EXPECT_EQ(foot.typed(typed.size() + 1), typed + "z");
    EXPECT_TRUE(hasWindowKeyboard());
}

TEST_F(LayersTest, theOverlayLeavesClicksToWhatLiesBelow) {
    const Foot below(sway());
    const Foot focused(sway());
    sway().message({"[app_id=\"" + below.program() + "\"]", "move", "right"});
    focused.focus();
    const ScreenPicture before(sway());
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
    const ScreenPicture before(sway());
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
    sway().message({"fullscreen", "enable"});
    const ScreenPicture before(sway());
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

}  // namespace

// SPDX-License-Identifier: MIT
//
// The overlay and the prompt, judged by pictures of the screen and by the program that they lie above.
#include <signal.h>

#include <algorithm>

#include "wayland/Places.h"
#include "wayland/ScreenLooks.h"
#include "wayland/SwayScreenTest.h"

namespace {

constexpr std::uint8_t three = 12;

class LayersTest : public testing::TestWithParam<Place> {
  protected:
    std::unique_ptr<Target> openTarget() const { return m_session->openTarget(GetParam().target); }
    std::unique_ptr<Child> startRecorder(const std::string& text) const {
        return m_session->run({KEYRILL_RECORDER, text}, "output");
    }
    /// With a macro; who is typed into has the focus again.
    void startProgram(const Target& target) {
        m_session->start("keystroke \"ab\"");
        target.focus();
    }
    void openPrompt() {
        m_session->strokeHotKey(xkey::m);
        ASSERT_TRUE(eventually([this] { return m_session->hasLayerKeys(); })) << log();
    }
    /// The screen, once it is full of who has the focus.
    ScreenPicture pictureWithFullScreen(const Target& target) const {
        m_session->makeFullScreen();
        const ScreenPicture now = m_session->picture();
        return pictureWith(look(), target.colour(),
                           {{0, now.height() - 1}, {now.width() - 1, now.height() - 1}});
    }
    std::optional<ScreenArea> changedArea(const ScreenPicture& before) const {
        return ::changedArea(look(), before);
    }
    bool isAsBefore(const ScreenPicture& before) const {
        return eventually([&] { return !m_session->picture().differsFrom(before); });
    }
    /// For whoever looks at it.
    void keep(const std::string& name) const {
        m_session->picture().keep(std::string(GetParam().name) + "-" + name);
    }

    ProgramSession& session() { return *m_session; }
    Hands& hands() { return m_session->hands(); }
    std::string log() const { return m_session->log(); }

  private:
    ScreenLook look() const {
        return [this] { return m_session->picture(); };
    }

    std::unique_ptr<ProgramSession> m_session = GetParam().open();
};

INSTANTIATE_TEST_SUITE_P(Sessions, LayersTest, testing::Values(place::seenSway, place::seenKWin), nameOf);

TEST_P(LayersTest, theOverlayLiesAtTheUpperRightAboveAFullScreen) {
    const auto target = openTarget();
    const ScreenPicture before = pictureWithFullScreen(*target);
    const auto recorder = startRecorder("hello");
    // 10 pixels from the right, 30 from the top.
    EXPECT_EQ(changedArea(before), (ScreenArea{1024 - 10 - 420, 30, 420, 60})) << log();
    keep("overlay");
    recorder->signal(SIGTERM);
    recorder->wait();
    EXPECT_TRUE(isAsBefore(before));
}

TEST_P(LayersTest, theOverlayLeavesTheKeysToTheWindow) {
    const auto target = openTarget();
    const ScreenPicture before = pictureWithFullScreen(*target);
    const auto isThere = [&] {
        constexpr int inOverlayX = 1000;
        constexpr int inOverlayY = 60;
        return session().picture().at(inOverlayX, inOverlayY) != before.at(inOverlayX, inOverlayY);
    };
    const auto recorder = startRecorder("hello");
    std::string typed;
    // From before it comes until after it has come.
    do {
        hands().stroke({xkey::a});
        typed += 'a';
    } while (!isThere() && typed.size() < 400);
    EXPECT_TRUE(isThere()) << "the overlay has not come: " << log();
    hands().stroke({xkey::z});
    EXPECT_TRUE(eventually([&] { return target->text().ends_with("z"); }, std::chrono::seconds(20)));
    // Where the machine is so busy that a stroke lasts long, it repeats: none is lost.
    const std::string text = target->text();
    EXPECT_GE(text.size(), typed.size() + 1);
    EXPECT_EQ(text, std::string(text.size() - 1, 'a') + "z");
    EXPECT_FALSE(session().hasLayerKeys());
}

TEST_P(LayersTest, thePromptIsPlayedFromAboveAFullScreen) {
    const auto target = openTarget();
    startProgram(*target);
    const ScreenPicture before = pictureWithFullScreen(*target);
    openPrompt();
    const auto area = changedArea(before);
    ASSERT_TRUE(area);
    keep("prompt");
    EXPECT_LT(area->width, 600) << *area;
    EXPECT_EQ(area->x, (1024 - area->width) / 2);
    EXPECT_EQ(area->y, (640 - area->height) / 3);
    hands().stroke({three});
    hands().stroke({xkey::returnKey});
    EXPECT_EQ(target->text("ababab"), "ababab");
    hands().stroke({xkey::z});
    EXPECT_EQ(target->text("abababz"), "abababz");
    // But for what was typed.
    EXPECT_TRUE(eventually([&] {
        const ScreenPicture now = session().picture();
        return now.at(area->x + 1, area->y + area->height / 2) ==
               before.at(area->x + 1, area->y + area->height / 2);
    }));
}

TEST_P(LayersTest, aClickOnThePromptsButtonPlays) {
    const auto mouse = session().plugMouse();
    const auto target = openTarget();
    startProgram(*target);
    const ScreenPicture before = pictureWithFullScreen(*target);
    openPrompt();
    const auto area = changedArea(before);
    ASSERT_TRUE(area);
    ASSERT_LT(area->width, 600) << *area;
    // The button is at its right end.
    mouse->click(static_cast<unsigned>(area->x + area->width - 40),
                 static_cast<unsigned>(area->y + area->height / 2));
    EXPECT_EQ(target->text("ab"), "ab");
}

using LayersSharpTest = LayersTest;

INSTANTIATE_TEST_SUITE_P(Sessions, LayersSharpTest, testing::Values(place::sharpSway, place::sharpKWin),
                         nameOf);

TEST_P(LayersSharpTest, theOverlayUsesAllPixelsOfASharpScreen) {
    const auto target = openTarget();
    const ScreenPicture before = pictureWithFullScreen(*target);
    const auto recorder = startRecorder("illill");
    const ScreenArea area{before.width() - 2 * (10 + 420), 2 * 30, 2 * 420, 2 * 60};
    ASSERT_EQ(changedArea(before), area) << log();
    keep("sharp-overlay");
    // A picture that was enlarged has no line that is one pixel wide.
    const ScreenPicture now = session().picture();
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

/// Where no picture is needed.
using PromptTest = LayersTest;

INSTANTIATE_TEST_SUITE_P(Sessions, PromptTest, testing::Values(place::sway, place::kwin), nameOf);

TEST_P(PromptTest, escapeGivesTheKeyboardBack) {
    const auto target = openTarget();
    startProgram(*target);
    openPrompt();
    hands().stroke({xkey::escape});
    EXPECT_TRUE(eventually([this] { return !session().hasLayerKeys(); }));
    hands().stroke({xkey::z});
    EXPECT_EQ(target->text("z"), "z");
    // A play would come half a second later.
    EXPECT_FALSE(eventually([&] { return target->text() != "z"; }, std::chrono::milliseconds(1200)));
}

class KWinLayersTest : public LayersTest {};

INSTANTIATE_TEST_SUITE_P(Sessions, KWinLayersTest, testing::Values(place::seenKWin), nameOf);

/// Where a click brings the end of the text in front of the keys.
TEST_P(KWinLayersTest, theOverlayLeavesClicksToTheField) {
    const auto target = openTarget();
    hands().type("ab");
    ASSERT_EQ(target->text("ab"), "ab");
    hands().stroke({xkey::home});
    hands().type("c");
    ASSERT_EQ(target->text("cab"), "cab");
    const ScreenPicture before = pictureWithFullScreen(*target);
    const auto recorder = startRecorder("hello");
    ASSERT_EQ(changedArea(before), (ScreenArea{1024 - 10 - 420, 30, 420, 60}));
    session().plugMouse()->click(1000, 60);
    hands().type("z");
    EXPECT_EQ(target->text("cabz"), "cabz");
}

/// Where there is no X server.
using WaylandOnlyTest = LayersTest;

INSTANTIATE_TEST_SUITE_P(Sessions, WaylandOnlyTest, testing::Values(place::pureSway, place::pureKWin),
                         nameOf);

TEST_P(WaylandOnlyTest, thePromptIsPlayed) {
    const auto target = openTarget();
    startProgram(*target);
    openPrompt();
    hands().stroke({three});
    hands().stroke({xkey::returnKey});
    EXPECT_EQ(target->text("ababab"), "ababab");
}

TEST_P(WaylandOnlyTest, theFirstStartLeadsToThePreferences) {
    session().forgetSettings();
    session().start("keystroke \"ab\"");
    ASSERT_TRUE(eventually([this] { return session().shows("Welcome to Keyrill"); })) << log();
    session().compositor().close("Welcome to Keyrill");
    EXPECT_TRUE(eventually([this] { return session().shows("Keyrill Preferences"); })) << log();
}

/// A question of the script's is a window of the program's own, here called as the small one is that stands
/// in for a tray.
TEST_P(WaylandOnlyTest, keysThatFollowAnAnswerGoWhereTheUserWas) {
    const auto target = openTarget();
    session().start("display dialog \"Really?\" with title \"Keyrill\"\nkeystroke \"ab\"");
    target->focus();
    for (const char* const expected : {"ab", "abab", "ababab"}) {
        session().strokeHotKey(xkey::p);
        // KWin numbers those with one title.
        ASSERT_TRUE(eventually([this] {
            return session().compositor().hasFocus("Keyrill") ||
                   session().compositor().hasFocus("Keyrill <2>");
        })) << log();
        hands().stroke({xkey::returnKey});
        EXPECT_EQ(target->text(expected), expected) << log();
    }
}

/// Nor does its toolkit.
TEST_P(WaylandOnlyTest, theProgramComplainsOfNothing) {
    const auto target = openTarget();
    startProgram(*target);
    openPrompt();
    hands().stroke({xkey::escape});
    EXPECT_TRUE(eventually([this] { return !session().hasLayerKeys(); }));
    session().program().signal(SIGTERM);
    ASSERT_EQ(session().program().wait(), 0);
    session().forgetSettings();
    session().start("keystroke \"ab\"");
    ASSERT_TRUE(eventually([this] { return session().shows("Welcome to Keyrill"); })) << log();
    EXPECT_EQ(log(), "");
}

class SwayLayersTest : public SwayScreenTest {
  protected:
    std::unique_ptr<Child> startRecorder(const std::string& text) const {
        return run({KEYRILL_RECORDER, text}, "output");
    }
};

TEST_F(SwayLayersTest, theOverlayLeavesClicksToWhatLiesBelow) {
    const Foot below(sway());
    const Foot focused(sway());
    sway().message({"[app_id=\"" + below.program() + "\"]", "move", "right"});
    focused.focus();
    const ScreenPicture before = pictureWithTerminalsAt({{200, 320}, {900, 320}});
    const auto recorder = startRecorder("hello");
    ASSERT_EQ(changedArea(before), (ScreenArea{1024 - 10 - 420, 30, 420, 60}));
    hands().stroke({xkey::a});
    EXPECT_EQ(focused.typed(1), "a");
    sway().message({"seat", "-", "cursor", "set", "1000", "60"});
    sway().message({"seat", "-", "cursor", "press", "button1"});
    sway().message({"seat", "-", "cursor", "release", "button1"});
    hands().stroke({xkey::z});
    EXPECT_EQ(below.typed(1), "z");
}

TEST_F(SwayLayersTest, theOverlayComesToTheScreenThatTheUserIsAt) {
    sway().message({"create_output"});
    sway().message({"output", "HEADLESS-2", "resolution", "800x600", "position", "1024", "0"});
    sway().message({"focus", "output", "HEADLESS-2"});
    const ScreenPicture before(sway(), "HEADLESS-2");
    const ScreenPicture otherBefore = picture();
    const auto recorder = startRecorder("hello");
    EXPECT_EQ(changedArea(before, "HEADLESS-2"), (ScreenArea{800 - 10 - 420, 30, 420, 60})) << log();
    EXPECT_FALSE(picture().differsFrom(otherBefore));
}

}  // namespace

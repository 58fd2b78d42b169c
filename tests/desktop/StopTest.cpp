// SPDX-License-Identifier: MIT
#include <signal.h>

#include <algorithm>
#include <fstream>
#include <optional>

#include "desktop/DesktopTest.h"
#include "display/NestedServers.h"
#include "display/Typist.h"
#include "support/Programs.h"

namespace {

constexpr const char* question = "Go on?";

/// The program that people get plays a macro, and a person at a real keyboard wants it to end.
class StopTest : public testing::TestWithParam<Typist::Gap> {
  protected:
    StopTest() {
        // One press is one key.
        outputOf({"xset", "r", "off"}, {{"DISPLAY", servers.outerDisplay()}});
        desktop.startWindowManager();
        terminal.emplace(desktop.display());
    }

    void start(const std::string& script) {
        std::ofstream(desktop.file("macro.keyrill")) << script;
        product.emplace(std::vector<std::string>{programs::keyrill, desktop.file("macro.keyrill")},
                        desktop.options("product.log"));
        ASSERT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
    }
    void play() const { typist.stroke({xkey::control, xkey::super, xkey::p}); }
    void stop() const { typist.stroke({xkey::control, xkey::super, xkey::s}); }
    void holdEscape() const {
        typist.press({xkey::escape});
        typist.hold(std::chrono::milliseconds(400));
        typist.release({xkey::escape});
    }
    std::ptrdiff_t typed(char character) const {
        const std::string all = terminal->typed();
        return std::count(all.begin(), all.end(), character);
    }
    /// How many strokes have been typed once none comes any more.
    std::ptrdiff_t strokesAtTheEnd() const {
        std::ptrdiff_t before = -1;
        EXPECT_TRUE(eventually(
            [&] {
                typist.hold(std::chrono::milliseconds(300));
                return std::exchange(before, typed('a')) == typed('a');
            },
            std::chrono::seconds(100)));
        return before;
    }
    void awaitQuestion() const {
        const ScreenWindow window = desktop.awaitWindow(question);
        ASSERT_TRUE(eventually([&] { return desktop.hasFocus(window); }));
    }
    /// The macro has come to its end: the next play types its first character again.
    void expectEnd(std::ptrdiff_t strokes) {
        ASSERT_TRUE(eventually([this] { return !desktop.shows(question) && terminal->hasFocus(); }));
        play();
        EXPECT_TRUE(eventually([&] { return typed('a') == strokes + 1; })) << terminal->typed();
        EXPECT_EQ(desktop.keysDown(), std::vector<std::string>());
    }

    NestedServers servers;
    Desktop desktop{servers.display()};
    Typist typist{servers, GetParam()};
    std::optional<Terminal> terminal;
    std::optional<Child> product;
};

constexpr const char* tenSeconds = R"(repeat 1000 times
tell application "System Events" to key code 0
delay 0.01
end repeat
)";

/// Asks again and again, whatever is answered.
constexpr const char* stubborn = R"(tell application "System Events" to keystroke "a"
repeat
try
display dialog "What now?" with title "Go on?"
end try
end repeat
)";

TEST_P(StopTest, discardsThePlaysThatWereAskedForMeanwhile) {
    start(tenSeconds);
    play();
    terminal->typed(20);
    for (int times = 0; times < 3; ++times) play();
    stop();
    EXPECT_LT(strokesAtTheEnd(), 1000);
}

TEST_P(StopTest, discardsThemAlsoWhereTheModifiersStayDown) {
    start(tenSeconds);
    play();
    terminal->typed(20);
    typist.press({xkey::control, xkey::super});
    for (int times = 0; times < 3; ++times) typist.tap(xkey::p);
    typist.tap(xkey::s);
    typist.release({xkey::super, xkey::control});
    EXPECT_LT(strokesAtTheEnd(), 1000);
}

TEST_P(StopTest, leavesAPlayThatIsAskedForAfterIt) {
    start(tenSeconds);
    play();
    terminal->typed(20);
    typist.press({xkey::control, xkey::super});
    for (const std::uint8_t key : {xkey::p, xkey::s, xkey::p}) typist.tap(key);
    typist.release({xkey::super, xkey::control});
    const std::ptrdiff_t strokes = strokesAtTheEnd();
    EXPECT_GT(strokes, 1000);
    EXPECT_LT(strokes, 2000);
}

TEST_P(StopTest, aHeldEscapeDiscardsThemToo) {
    start(tenSeconds);
    play();
    terminal->typed(20);
    for (int times = 0; times < 3; ++times) play();
    holdEscape();
    EXPECT_LT(strokesAtTheEnd(), 1000);
}

TEST_P(StopTest, theCombinationEndsAMacroThatAsksForEver) {
    start(stubborn);
    play();
    awaitQuestion();
    stop();
    expectEnd(1);
}

TEST_P(StopTest, aHeldEscapeEndsAMacroThatAsksForEver) {
    start(stubborn);
    play();
    awaitQuestion();
    holdEscape();
    expectEnd(1);
}

TEST_P(StopTest, endsAMacroThatOnlyAsks) {
    start("repeat\ntry\ndisplay dialog \"What now?\" with title \"Go on?\"\nend try\nend repeat\n");
    play();
    awaitQuestion();
    stop();
    EXPECT_TRUE(eventually([this] { return !desktop.shows(question) && terminal->hasFocus(); }));
    // Nothing of the combination has been typed, and the macro can be played again.
    EXPECT_EQ(terminal->typed(), "");
    play();
    awaitQuestion();
}

TEST_P(StopTest, endsAMacroThatWaitsForTheClipboardOfAProgramThatHangs) {
    std::ofstream(desktop.file("clip")) << "clip";
    Child owner({"xclip", "-selection", "clipboard", "-quiet", "-i", desktop.file("clip")},
                desktop.options("xclip.log"));
    ASSERT_TRUE(eventually([this] { return desktop.screen().isOwned("CLIPBOARD"); }));
    owner.signal(SIGSTOP);
    start(R"(tell application "System Events" to keystroke "a"
repeat 1000 times
try
set x to the clipboard
end try
end repeat
)");
    play();
    terminal->typed(1);
    stop();
    expectEnd(1);
    stop();
    owner.signal(SIGKILL);
}

INSTANTIATE_TEST_SUITE_P(EachGap, StopTest,
                         testing::Values(Typist::Gap(30), Typist::Gap(80), Typist::Gap(150)),
                         [](const auto& gap) { return nameOf(gap.param); });

}  // namespace

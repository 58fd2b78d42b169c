// SPDX-License-Identifier: MIT
//
// Combinations that are pressed while a macro plays: they are acted on when it has come to its end, and
// nothing of them is typed.
#include <fstream>
#include <optional>
#include <tuple>

#include "desktop/DesktopTest.h"
#include "display/NestedServers.h"
#include "display/Typist.h"
#include "support/Programs.h"

namespace {

enum class Keyboard { real, anotherPrograms };

class MeanwhileTest : public testing::TestWithParam<std::tuple<Typist::Gap, Keyboard>> {
  protected:
    /// Of the macro; it lasts for four seconds and more.
    static constexpr std::size_t strokes = 400;

    MeanwhileTest() {
        // One press is one key.
        outputOf({"xset", "r", "off"}, {{"DISPLAY", servers.outerDisplay()}});
        desktop.startWindowManager();
        desktop.startTray();
        terminal.emplace(desktop.display());
        std::ofstream(desktop.file("macro.keyrill"))
            << "repeat " << strokes
            << " times\n\ttell application \"System Events\" to key code 0\n\tdelay 0.01\nend repeat\n";
        product.emplace(std::vector<std::string>{programs::keyrill, desktop.file("macro.keyrill")},
                        desktop.options("product.log"));
        EXPECT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
    }

    Typist typist() const {
        const auto& [gap, keyboard] = GetParam();
        return keyboard == Keyboard::real ? Typist(servers, gap) : Typist(servers.program(), gap);
    }
    void hotKey(std::uint8_t keycode) const { typist().stroke({xkey::control, xkey::super, keycode}); }
    void hotKeyInAPlay(std::uint8_t keycode) const {
        hotKey(xkey::p);
        terminal->typed(20);
        hotKey(keycode);
        ASSERT_LT(terminal->typed().size(), strokes) << "too late";
    }
    /// The terminal has got the macro, this, a full stop that is typed now, and nothing else.
    void expectTypedAfterTheMacro(const std::string& others) const {
        const std::string expected = std::string(strokes, 'a') + others;
        EXPECT_EQ(terminal->typed(expected.size()), expected);
        typist().tap(xkey::period);
        EXPECT_EQ(terminal->typed(expected.size() + 1), expected + ".");
        EXPECT_EQ(desktop.keysDown(), std::vector<std::string>());
    }

    NestedServers servers;
    Desktop desktop{servers.display()};
    std::optional<Terminal> terminal;
    std::optional<Child> product;
};

TEST_P(MeanwhileTest, recordsWhatIsTypedAfterThePlay) {
    hotKeyInAPlay(xkey::r);
    desktop.awaitWindow(title::overlay);
    for (const std::uint8_t keycode : {xkey::s, xkey::b, xkey::m}) typist().tap(keycode);
    hotKey(xkey::s);
    EXPECT_TRUE(eventually([this] { return !desktop.shows(title::overlay); }));
    hotKey(xkey::p);
    expectTypedAfterTheMacro("sbmsbm");
}

TEST_P(MeanwhileTest, asksAfterThePlayHowOftenToPlay) {
    hotKeyInAPlay(xkey::m);
    desktop.awaitFocus(title::prompt);
    typist().tap(xkey::escape);
    ASSERT_TRUE(eventually([this] { return !desktop.shows(title::prompt) && terminal->hasFocus(); }));
    expectTypedAfterTheMacro("");
}

std::string nameOfCondition(const testing::TestParamInfo<std::tuple<Typist::Gap, Keyboard>>& info) {
    const auto& [gap, keyboard] = info.param;
    return nameOf(gap) + (keyboard == Keyboard::real ? "OnARealKeyboard" : "OnTheKeyboardOfAnotherProgram");
}

INSTANTIATE_TEST_SUITE_P(EachGap, MeanwhileTest,
                         testing::Combine(testing::Values(Typist::Gap(30), Typist::Gap(80)),
                                          testing::Values(Keyboard::real, Keyboard::anotherPrograms)),
                         nameOfCondition);

}  // namespace

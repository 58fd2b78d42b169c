// SPDX-License-Identifier: MIT
#include <algorithm>
#include <fstream>
#include <optional>
#include <tuple>

#include "desktop/DesktopTest.h"
#include "display/NestedServers.h"
#include "display/Typist.h"
#include "support/Programs.h"

namespace {

enum class Keyboard { real, anotherPrograms };
/// What the macro does with Control, which the stop combination has too.
enum class Control { up, around, held };

/// What the terminal gets of each stroke, and how the macro looks.
struct Played {
    char typed;
    std::string before;
    std::string stroke;
};
Played playedWith(Control control) {
    switch (control) {
        case Control::around:
            return {'\x01', "", "key code 0 using control down"};
        case Control::held:
            return {'\x01', "tell application \"System Events\" to key down control\n", "key code 0"};
        case Control::up:
            break;
    }
    return {'a', "", "key code 0"};
}

/// The program that people get plays a macro that lasts for half a minute, and a person ends it.
class HandsCancelTest : public testing::TestWithParam<std::tuple<Typist::Gap, Keyboard, Control>> {
  protected:
    static constexpr std::size_t strokes = 3000;

    HandsCancelTest() {
        // One press is one key.
        outputOf({"xset", "r", "off"}, {{"DISPLAY", servers.outerDisplay()}});
        std::ofstream(desktop.file("long.keyrill"))
            << played.before << "repeat " << strokes << " times\n\ttell application \"System Events\" to "
            << played.stroke << "\n\tdelay 0.01\nend repeat\n";
        product.emplace(std::vector<std::string>{programs::keyrill, desktop.file("long.keyrill")},
                        desktop.options("product.log"));
        EXPECT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
        typist().stroke({xkey::control, xkey::super, xkey::p});
        terminal.typed(20);
    }

    Typist typist() const {
        const auto [gap, keyboard, control] = GetParam();
        return keyboard == Keyboard::real ? Typist(servers, gap) : Typist(servers.program(), gap);
    }
    /// All that has been typed once the macro has come to its end, however it did.
    std::string typedAtTheEnd() const {
        std::size_t before = 0;
        EXPECT_TRUE(eventually(
            [&] {
                // Ten strokes' time in which none comes.
                typist().hold(std::chrono::milliseconds(150));
                return std::exchange(before, terminal.typed().size()) == terminal.typed().size();
            },
            std::chrono::seconds(60)));
        servers.program().tap(xkey::period);
        servers.program().finish();
        EXPECT_TRUE(eventually([this] { return terminal.typed().ends_with('.'); }));
        return terminal.typed();
    }

    std::ptrdiff_t strokesIn(const std::string& typed) const {
        return std::count(typed.begin(), typed.end(), played.typed);
    }

    const Played played = playedWith(std::get<Control>(GetParam()));
    NestedServers servers;
    Desktop desktop{servers.display()};
    Terminal terminal{desktop.display()};
    std::optional<Child> product;
};

TEST_P(HandsCancelTest, theStopCombinationEndsAPlaybackAndNothingOfItIsTyped) {
    typist().stroke({xkey::control, xkey::super, xkey::s});
    const std::string typed = typedAtTheEnd();
    EXPECT_LT(strokesIn(typed), std::ptrdiff_t{strokes / 2});
    // As it is, as a control character, or as what the terminal makes of further modifiers.
    EXPECT_EQ(typed.find_first_of("s\x13"), std::string::npos) << typed;
    EXPECT_EQ(typed.find('\x1b'), std::string::npos) << typed;
    EXPECT_EQ(desktop.keysDown(), std::vector<std::string>());
}

TEST_P(HandsCancelTest, aHeldEscapeEndsAPlayback) {
    typist().press({xkey::escape});
    typist().hold(std::chrono::milliseconds(400));
    typist().release({xkey::escape});
    const std::string typed = typedAtTheEnd();
    EXPECT_LT(strokesIn(typed), std::ptrdiff_t{strokes / 2});
    EXPECT_EQ(desktop.keysDown(), std::vector<std::string>());
}

std::string nameOfCondition(const testing::TestParamInfo<std::tuple<Typist::Gap, Keyboard, Control>>& info) {
    const auto [gap, keyboard, control] = info.param;
    const std::string macro = control == Control::up       ? ""
                              : control == Control::around ? "WithControlAroundEachStroke"
                                                           : "WithControlHeld";
    return nameOf(gap) + (keyboard == Keyboard::real ? "OnARealKeyboard" : "OnTheKeyboardOfAnotherProgram") +
           macro;
}

INSTANTIATE_TEST_SUITE_P(EachGap, HandsCancelTest,
                         testing::Combine(testing::ValuesIn(Typist::gaps),
                                          testing::Values(Keyboard::real, Keyboard::anotherPrograms),
                                          testing::Values(Control::up)),
                         nameOfCondition);
INSTANTIATE_TEST_SUITE_P(OfAMacroWithControl, HandsCancelTest,
                         testing::Combine(testing::Values(Typist::Gap(5), Typist::Gap(80)),
                                          testing::Values(Keyboard::real, Keyboard::anotherPrograms),
                                          testing::Values(Control::around, Control::held)),
                         nameOfCondition);

}  // namespace

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
/// Which modifiers the macro has around each stroke or holds all the time; the stop combination has Control.
struct Macro {
    const char* name;
    std::string before;
    std::string stroke;
    /// What the terminal gets of each stroke.
    std::string typed;
};

Macro around(const char* name, const std::string& modifiers, const std::string& typed) {
    return {name, "", "key code 0 using {" + modifiers + "}", typed};
}
Macro held(const char* name, const std::string& modifier, const std::string& typed) {
    return {name, "tell application \"System Events\" to key down " + modifier + "\n", "key code 0", typed};
}

/// The program that people get plays a macro that lasts for half a minute, and a person ends it.
class HandsCancelTest : public testing::TestWithParam<std::tuple<Typist::Gap, Keyboard, Macro>> {
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
        const auto& [gap, keyboard, macro] = GetParam();
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
        std::ptrdiff_t count = 0;
        for (std::size_t at = 0; (at = typed.find(played.typed, at)) != std::string::npos; ++at) ++count;
        return count;
    }

    const Macro played = std::get<Macro>(GetParam());
    NestedServers servers;
    Desktop desktop{servers.display()};
    Terminal terminal{desktop.display()};
    std::optional<Child> product;
};

TEST_P(HandsCancelTest, theStopCombinationEndsAPlaybackAndNothingOfItIsTyped) {
    typist().stroke({xkey::control, xkey::super, xkey::s});
    const std::string typed = typedAtTheEnd();
    EXPECT_LT(strokesIn(typed), std::ptrdiff_t{strokes / 2});
    // Nothing but the macro's own: no letter of the combination in whatever shape.
    std::string others = typed.substr(0, typed.size() - 1);
    for (std::size_t at = 0; (at = others.find(played.typed)) != std::string::npos;)
        others.erase(at, played.typed.size());
    EXPECT_EQ(others, "");
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

std::string nameOfCondition(const testing::TestParamInfo<std::tuple<Typist::Gap, Keyboard, Macro>>& info) {
    const auto& [gap, keyboard, macro] = info.param;
    return nameOf(gap) + (keyboard == Keyboard::real ? "OnARealKeyboard" : "OnTheKeyboardOfAnotherProgram") +
           macro.name;
}

INSTANTIATE_TEST_SUITE_P(EachGap, HandsCancelTest,
                         testing::Combine(testing::ValuesIn(Typist::gaps),
                                          testing::Values(Keyboard::real, Keyboard::anotherPrograms),
                                          testing::Values(Macro{"", "", "key code 0", "a"})),
                         nameOfCondition);
INSTANTIATE_TEST_SUITE_P(
    OfAMacroWithModifiers, HandsCancelTest,
    testing::Combine(testing::Values(Typist::Gap(30), Typist::Gap(80)),
                     testing::Values(Keyboard::real, Keyboard::anotherPrograms),
                     testing::Values(around("WithControl", "control down", "\x01"),
                                     around("WithAlt", "option down", "\xC3\xA1"),
                                     around("WithControlAndShift", "control down, shift down", "\x01"),
                                     around("WithAltAndShift", "option down, shift down", "\xC3\x81"),
                                     held("HoldingControl", "control", "\x01"),
                                     held("HoldingAlt", "option", "\xC3\xA1"),
                                     held("HoldingShift", "shift", "A"))),
    nameOfCondition);

}  // namespace

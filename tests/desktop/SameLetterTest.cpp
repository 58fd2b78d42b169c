// SPDX-License-Identifier: MIT
#include <signal.h>

#include "desktop/DesktopTest.h"
#include "display/NestedServers.h"
#include "display/RepeatCount.h"
#include "display/Typist.h"
#include "support/Programs.h"

namespace {

/// A person types the letter of a hot key as soon as the hot key is up.
class SameLetterTest : public testing::TestWithParam<Typist::Gap> {
  protected:
    static constexpr int times = 8;

    SameLetterTest() {
        // One press is one key.
        outputOf({"xset", "r", "off"}, {{"DISPLAY", servers.outerDisplay()}});
        product.emplace(std::vector<std::string>{programs::keyrill}, desktop.options("product.log"));
        EXPECT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
    }

    /// The modifiers come up last, as one hand does it, or first, as the other does it.
    void command(std::uint8_t key, bool modifiersFirst) const {
        typist.press({xkey::control, xkey::super, key});
        if (modifiersFirst) {
            typist.release({xkey::super, xkey::control, key});
        } else {
            typist.release({key, xkey::super, xkey::control});
        }
    }

    NestedServers servers;
    Desktop desktop{servers.display()};
    Terminal terminal{desktop.display()};
    Typist typist{servers, GetParam()};
    std::optional<Child> product;
};

TEST_P(SameLetterTest, isTypedAndRecordedEachTime) {
    std::string expected;
    for (int i = 0; i < times; ++i) {
        command(xkey::r, i % 2 == 0);
        typist.tap(xkey::r);
        typist.tap(xkey::a);
        expected += "ra";
        ASSERT_EQ(terminal.typed(expected.size()), expected);
        command(xkey::s, i % 2 == 0);
        typist.tap(xkey::s);
        expected += "s";
        ASSERT_EQ(terminal.typed(expected.size()), expected);
        command(xkey::p, i % 2 == 0);
        expected += "ra";
        ASSERT_EQ(terminal.typed(expected.size()), expected);
    }
}

/// However fast the hands are and however slow the program is: it sees nothing of the letter before all of it
/// has been typed.
TEST_P(SameLetterTest, isTypedAndRecordedWhileTheProgramDoesNotLook) {
    const auto letGoAndType = [this](std::uint8_t key, std::initializer_list<std::uint8_t> typed) {
        product->signal(SIGSTOP);
        typist.release({key, xkey::super, xkey::control});
        for (const std::uint8_t letter : typed) typist.tap(letter);
        product->signal(SIGCONT);
    };
    typist.press({xkey::control, xkey::super, xkey::r});
    desktop.awaitWindow(title::overlay);
    letGoAndType(xkey::r, {xkey::r, xkey::a});
    EXPECT_EQ(terminal.typed(2), "ra");
    typist.press({xkey::control, xkey::super, xkey::s});
    ASSERT_TRUE(eventually([this] { return !desktop.shows(title::overlay); }));
    letGoAndType(xkey::s, {xkey::s});
    EXPECT_EQ(terminal.typed(3), "ras");
    command(xkey::p, false);
    EXPECT_EQ(terminal.typed(5), "rasra");
}

/// The keyboard repeats, as people's do: a command that is held down is one command, and nothing else.
TEST_P(SameLetterTest, aCommandThatIsHeldUntilItRepeatsIsGivenOnce) {
    outputOf({"xset", "r", "rate", "150", "50"}, {{"DISPLAY", desktop.display()}});
    constexpr int repeats = 5;
    const auto holdCommand = [this](std::uint8_t key) {
        RepeatCount count(desktop.display(), key);
        typist.press({xkey::control, xkey::super, key});
        ASSERT_TRUE(eventually([&] { return count.presses() > repeats; }));
        typist.release({xkey::super, xkey::control});
        // Of a letter by now, if it were not the hot key's.
        const int before = count.presses();
        ASSERT_TRUE(eventually([&] { return count.presses() > before + repeats; }));
        typist.release({key});
    };
    holdCommand(xkey::r);
    desktop.awaitWindow(title::overlay);
    typist.tap(xkey::r);
    typist.tap(xkey::a);
    EXPECT_EQ(terminal.typed(2), "ra");
    holdCommand(xkey::s);
    ASSERT_TRUE(eventually([this] { return !desktop.shows(title::overlay); }));
    typist.tap(xkey::s);
    EXPECT_EQ(terminal.typed(3), "ras");
    holdCommand(xkey::p);
    EXPECT_EQ(terminal.typed(5), "rasra");
    typist.tap(xkey::period);
    EXPECT_EQ(terminal.typed(6), "rasra.");
}

// Less is what servers inside a window make of a key that repeats.
constexpr std::array gaps{Typist::Gap(2), Typist::Gap(5), Typist::Gap(10), Typist::Gap(30)};

INSTANTIATE_TEST_SUITE_P(EachGap, SameLetterTest, testing::ValuesIn(gaps),
                         [](const auto& gap) { return nameOf(gap.param); });

}  // namespace

// SPDX-License-Identifier: MIT
//
// Shift Lock and locked levels: hot keys work under them, and what is played arrives as it is meant.
#include <optional>

#include "cli/Play.h"
#include "desktop/DesktopTest.h"
#include "display/KeyboardProbe.h"
#include "display/Typist.h"
#include "support/Programs.h"

namespace {

struct Lock {
    const char* name;
    std::vector<std::string> layout;
    /// The keys that lock it, the last one under the others.
    std::vector<std::uint8_t> keys;
    std::uint8_t locked;
    /// What the key A types without it and under it.
    std::string plain;
    std::string typed;
};

constexpr std::uint8_t lessKey = 94;

class LockedLevelsTest : public testing::TestWithParam<Lock> {
  protected:
    LockedLevelsTest() {
        desktop.startWindowManager();
        desktop.setLayout(GetParam().layout);
        terminal.emplace(desktop.display());
        product.emplace(std::vector<std::string>{programs::keyrill}, desktop.options("product.log"));
        EXPECT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
    }

    void lock() const {
        for (const std::uint8_t key : GetParam().keys) typist.press({key});
        for (auto key = GetParam().keys.rbegin(); key != GetParam().keys.rend(); ++key)
            typist.release({*key});
    }
    /// A recording begins and ends by its combinations, and is played by another.
    void expectThatHotKeysRecordAndPlay(const std::string& sign) {
        typist.stroke({xkey::control, xkey::super, xkey::r});
        EXPECT_TRUE(eventually([this] { return desktop.shows(title::overlay); }));
        typist.tap(xkey::a);
        m_expected += sign;
        ASSERT_EQ(terminal->typed(m_expected.size()), m_expected);
        typist.stroke({xkey::control, xkey::super, xkey::s});
        EXPECT_TRUE(eventually([this] { return !desktop.shows(title::overlay); }));
        typist.stroke({xkey::control, xkey::super, xkey::p});
        m_expected += sign;
        ASSERT_EQ(terminal->typed(m_expected.size()), m_expected);
    }

    Desktop desktop;
    std::optional<Terminal> terminal;
    std::optional<Child> product;
    KeyboardProbe probe{desktop.display()};
    Hands hands{desktop.display()};
    Typist typist{hands, std::chrono::milliseconds(30)};

  private:
    /// By the terminal.
    std::string m_expected;
};

TEST_P(LockedLevelsTest, hotKeysWorkBeforeUnderAndAfterIt) {
    expectThatHotKeysRecordAndPlay(GetParam().plain);
    lock();
    ASSERT_EQ(probe.locked(), GetParam().locked);
    expectThatHotKeysRecordAndPlay(GetParam().typed);
    EXPECT_TRUE(eventually([this] { return probe.locked() == GetParam().locked; }));
    hands.lock(GetParam().locked, false);
    hands.finish();
    expectThatHotKeysRecordAndPlay(GetParam().plain);
    EXPECT_EQ(desktop.keysDown(), std::vector<std::string>());
}

INSTANTIATE_TEST_SUITE_P(
    Locks, LockedLevelsTest,
    testing::Values(
        Lock{"shiftLock", {"us", "-option", "caps:shiftlock"}, {xkey::capsLock}, xmask::shift, "a", "A"},
        Lock{"oghamsThirdLevel", {"ie", "ogam_is434"}, {xkey::capsLock}, xmask::levelThree, "a", "\u1690"},
        Lock{"neosFourthLevel", {"de", "neo"}, {lessKey, xkey::altGr}, xmask::numLock, "u", "\x1b[H"},
        Lock{"neosCapsLock", {"de", "neo"}, {xkey::shift, xkey::rightShift}, xmask::capsLock, "u", "U"}),
    [](const auto& lock) { return std::string(lock.param.name); });

TEST(KeypadDigitsTest, areTypedOnALayoutWhoseNumLockGivesArrows) {
    const Desktop desktop;
    desktop.setLayout({"de", "neo"});
    const Terminal terminal(desktop.display());
    const KeyboardProbe probe(desktop.display());
    const Hands hands(desktop.display());
    for (const std::uint8_t locked : {std::uint8_t{0}, xmask::numLock}) {
        hands.lock(xmask::numLock, locked != 0);
        hands.finish();
        Play play(
            desktop.display(),
            "tell application \"System Events\" to key code {82, 83, 84, 85, 86, 87, 88, 89, 91, 92}\n");
        EXPECT_EQ(play.program().wait(), 0) << play.output();
        EXPECT_EQ(probe.locked(), locked);
    }
    EXPECT_EQ(terminal.typed(20), "01234567890123456789");
}

}  // namespace

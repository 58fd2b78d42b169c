// SPDX-License-Identifier: MIT
#include "platform/monitor/KeyboardHold.h"

#include <gtest/gtest.h>

#include <chrono>

#include "support/Keys.h"

namespace {

using Verdict = KeyboardHold::Verdict;
using std::chrono::milliseconds;

constexpr HoldSigns keyboardAlone{.keyboard = true};
constexpr HoldSigns keyboardAndMouse{.keyboard = true, .pointer = true};
constexpr HoldSigns menu{.keyboard = true, .pointer = true, .popup = true};
constexpr HoldSigns cover{.keyboard = true, .pointer = true, .popup = true, .cover = true};

class KeyboardHoldTest : public testing::Test {
  protected:
    Verdict after(milliseconds time, const HoldSigns& signs, const KeycodeSet& down = {}) {
        m_now += time;
        m_hold.look(m_now, signs, down);
        return m_hold.verdict();
    }
    static KeycodeSet keys(std::uint8_t keycode) { return KeycodeSet().set(keycode); }

    Clock::Time m_now = {};
    KeyboardHold m_hold;
};

TEST_F(KeyboardHoldTest, isOpenWhileNobodyHoldsTheKeyboard) {
    EXPECT_EQ(after(milliseconds(0), {}), Verdict::open);
    EXPECT_EQ(after(milliseconds(0), {.pointer = true, .popup = true}), Verdict::open);
}

TEST_F(KeyboardHoldTest, isOpenUnderAMenuHoweverLong) {
    EXPECT_EQ(after(milliseconds(0), menu), Verdict::open);
    EXPECT_EQ(after(milliseconds(60000), menu), Verdict::open);
}

TEST_F(KeyboardHoldTest, aMenuMayComeALittleLater) {
    EXPECT_EQ(after(milliseconds(0), keyboardAndMouse), Verdict::undecided);
    EXPECT_EQ(after(milliseconds(199), menu), Verdict::open);
}

TEST_F(KeyboardHoldTest, isLockedWhereTheMouseIsHeldTooAndNothingExplainsIt) {
    EXPECT_EQ(after(milliseconds(0), keyboardAndMouse), Verdict::undecided);
    EXPECT_TRUE(m_hold.mayBeLocked());
    EXPECT_EQ(after(milliseconds(199), keyboardAndMouse), Verdict::undecided);
    EXPECT_EQ(after(milliseconds(1), keyboardAndMouse), Verdict::locked);
    EXPECT_TRUE(m_hold.isShut());
}

TEST_F(KeyboardHoldTest, isLockedAtOnceUnderAWindowThatCoversTheScreen) {
    EXPECT_EQ(after(milliseconds(0), cover), Verdict::locked);
}

TEST_F(KeyboardHoldTest, staysLockedUntilTheKeyboardIsFree) {
    after(milliseconds(0), cover);
    EXPECT_EQ(after(milliseconds(10), menu), Verdict::locked);
    EXPECT_EQ(after(milliseconds(10), keyboardAlone), Verdict::locked);
    EXPECT_EQ(after(milliseconds(10), {}), Verdict::open);
}

TEST_F(KeyboardHoldTest, isTakenAfterTwoSecondsOfTheKeyboardAlone) {
    EXPECT_EQ(after(milliseconds(0), keyboardAlone), Verdict::undecided);
    EXPECT_FALSE(m_hold.mayBeLocked());
    EXPECT_EQ(after(milliseconds(1999), keyboardAlone), Verdict::undecided);
    EXPECT_EQ(after(milliseconds(1), keyboardAlone), Verdict::taken);
    EXPECT_TRUE(m_hold.isShut());
}

TEST_F(KeyboardHoldTest, whoTakesTheMouseAsWellLaterIsALocker) {
    after(milliseconds(0), keyboardAlone);
    EXPECT_EQ(after(milliseconds(2000), keyboardAlone), Verdict::taken);
    EXPECT_EQ(after(milliseconds(10), keyboardAndMouse), Verdict::locked);
}

TEST_F(KeyboardHoldTest, isUndecidedWhileTheKeyIsDownWithWhichItBegan) {
    EXPECT_EQ(after(milliseconds(0), cover, keys(xkey::alt) | keys(xkey::tab)), Verdict::undecided);
    EXPECT_EQ(after(milliseconds(9000), cover, keys(xkey::alt)), Verdict::undecided);
    EXPECT_FALSE(m_hold.mayBeLocked());
    EXPECT_EQ(after(milliseconds(0), {}), Verdict::open);
}

TEST_F(KeyboardHoldTest, keysThatRollOverDoNotProlongThat) {
    EXPECT_EQ(after(milliseconds(0), keyboardAndMouse, keys(xkey::s)), Verdict::undecided);
    EXPECT_EQ(after(milliseconds(100), keyboardAndMouse, keys(xkey::s) | keys(xkey::a)), Verdict::undecided);
    EXPECT_EQ(after(milliseconds(100), keyboardAndMouse, keys(xkey::a)), Verdict::locked);
}

}  // namespace

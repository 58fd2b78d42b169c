// SPDX-License-Identifier: MIT
#include "platform/KeyCodes.h"

#include <gtest/gtest.h>

#include <set>

#include "support/Keys.h"

namespace {

TEST(KeyCodesTest, tableIsWholeAndAscending) {
    ASSERT_EQ(keycode::rows().size(), 135U);
    std::uint32_t previous = 0;
    for (const auto& row : keycode::rows()) {
        EXPECT_TRUE(row.code == 0 || row.code > previous) << row.code;
        EXPECT_STRNE(row.name, "");
        previous = row.code;
    }
}

TEST(KeyCodesTest, everyRowUpTo127IsRecordedAsItself) {
    const std::set<std::uint32_t> aliases = {52};
    for (const auto& row : keycode::rows()) {
        if (row.code > 127 || row.evdev == 0 || row.evdev > keycode::maxEvdev) continue;
        EXPECT_EQ(keycode::fromEvdev(row.evdev), aliases.contains(row.code) ? 76U : row.code);
    }
}

TEST(KeyCodesTest, rowsAbove127ArePlayedAndNeverRecorded) {
    EXPECT_EQ(keycode::evdevFor(129), 217);
    EXPECT_EQ(keycode::fromEvdev(217), 0x1000U + 217);
}

TEST(KeyCodesTest, keysWithoutACodeOfTheirOwnAreExtensions) {
    EXPECT_EQ(keycode::fromEvdev(evdevkey::f13), 0x1000U + evdevkey::f13);
    EXPECT_EQ(keycode::evdevFor(0x1000 + evdevkey::f13), evdevkey::f13);
    EXPECT_TRUE(keycode::isExtension(0x1000 + evdevkey::f13));
    EXPECT_TRUE(keycode::isExtension(0x200 + 12));
    EXPECT_FALSE(keycode::isExtension(12));
}

TEST(KeyCodesTest, chooserBitsDoNotMoveTheKey) {
    EXPECT_EQ(keycode::evdevFor(12), 16);
    EXPECT_EQ(keycode::evdevFor(0x200 + 12), 16);
    EXPECT_EQ(keycode::evdevFor(0x600 + 12), 16);
}

TEST(KeyCodesTest, theLowestKeyOfAnXServerIsAKeyToo) {
    EXPECT_EQ(keycode::fromEvdev(0), 0x1000U);
    EXPECT_EQ(keycode::evdevFor(0x1000), 0);
    EXPECT_EQ(keycode::evdevFor(0x1200), 0);
    EXPECT_TRUE(keycode::isExtension(0x1000));
}

TEST(KeyCodesTest, codesWithoutAKeyPlayNothing) {
    for (const std::uint32_t code : {66U, 68U, 70U, 77U, 108U, 112U, 161U, 63U, 128U, 0xFFFFU, 0x10F8U}) {
        EXPECT_EQ(keycode::evdevFor(code), std::nullopt) << code;
    }
}

TEST(KeyCodesTest, layoutsAreBitsOnTop) {
    EXPECT_EQ(keycode::inLayout(12, 0), 0x2000U + 12);
    EXPECT_EQ(keycode::inLayout(0x200 + 12, 3), 0x8200U + 12);
    EXPECT_EQ(keycode::inLayout(0x2000 + 12, 1), 0x4000U + 12);
    EXPECT_EQ(keycode::layoutOf(12), std::nullopt);
    EXPECT_EQ(keycode::layoutOf(0x4000 + 12), 1);
    EXPECT_EQ(keycode::evdevFor(0x4000 + 12), 16);
    EXPECT_EQ(keycode::evdevFor(0x8000 + 0x1000 + evdevkey::f13), evdevkey::f13);
    EXPECT_EQ(keycode::evdevFor(0xA000 + 12), std::nullopt);
    EXPECT_TRUE(keycode::isExtension(0x4000 + 12));
    EXPECT_FALSE(keycode::isExtension(0xA000 + 12));
}

TEST(KeyCodesTest, powerIsRefused) { EXPECT_EQ(keycode::evdevFor(keycode::power), std::nullopt); }

TEST(KeyCodesTest, noneIsNoKey) { EXPECT_EQ(keycode::evdevFor(keycode::none), std::nullopt); }

TEST(KeyCodesTest, keypadDigitsAreTheTenDigitsAndThePoint) {
    std::set<std::uint32_t> digits;
    for (std::uint32_t code = 0; code < 0x2000; ++code) {
        if (keycode::isKeypadDigit(code)) digits.insert(code);
    }
    EXPECT_EQ(digits, (std::set<std::uint32_t>{65, 82, 83, 84, 85, 86, 87, 88, 89, 91, 92}));
}

}  // namespace

// SPDX-License-Identifier: MIT
#include "platform/keymap/StrokePlan.h"

#include <gtest/gtest.h>

#include "keymap/NamedKeymap.h"
#include "platform/Modifiers.h"
#include "support/Keys.h"

namespace {

TEST(StrokePlanTest, aCodeIsItsPositionWhateverTheLayout) {
    EXPECT_EQ(planStroke(*namedKeymap("us"), 12, 0).value(), (Stroke{.keycode = 24}));
    EXPECT_EQ(planStroke(*namedKeymap("fr"), 12, 0).value(), (Stroke{.keycode = 24}));
}

TEST(StrokePlanTest, modifiersBecomeBitsOfTheKeymap) {
    const auto us = namedKeymap("us");
    EXPECT_EQ(planStroke(*us, 0, modifier::command | modifier::shift).value(),
              (Stroke{.keycode = 38, .modifiers = 0x41}));
    EXPECT_EQ(planStroke(*us, 0, modifier::option | modifier::control).value(),
              (Stroke{.keycode = 38, .modifiers = 0x0C}));
}

TEST(StrokePlanTest, theFunctionKeyIsIgnored) {
    EXPECT_EQ(planStroke(*namedKeymap("us"), 0, modifier::functionKey).value(), (Stroke{.keycode = 38}));
}

TEST(StrokePlanTest, capsLockIsLockedAroundTheStroke) {
    EXPECT_EQ(planStroke(*namedKeymap("us"), 0, modifier::capsLock).value(),
              (Stroke{.keycode = 38, .lockMask = 0x02, .lockValues = 0x02}));
}

TEST(StrokePlanTest, textIsTypedWithoutLocksExceptWhatItsModifiersSay) {
    const auto us = namedKeymap("us");
    EXPECT_EQ(planModifiers(*us, modifier::control).value(), (Stroke{.modifiers = 0x04, .lockMask = 0xEF}));
    EXPECT_EQ(planModifiers(*us, modifier::capsLock).value(), (Stroke{.lockMask = 0xEF, .lockValues = 0x02}));
}

TEST(StrokePlanTest, chooserBitsHoldTheLevelChoosers) {
    const auto de = namedKeymap("de");
    EXPECT_EQ(planStroke(*de, 0x200 + 12, 0).value(), (Stroke{.keycode = 24, .modifiers = 0x80}));
    const auto fifth = planStroke(*de, 0x600 + 12, 0);
    ASSERT_FALSE(fifth);
    EXPECT_EQ(fifth.error().message, "The keyboard layout has no key for the fifth level.");
    EXPECT_EQ(planStroke(*namedKeymap("de(neo)"), 0x600 + 12, modifier::shift).value(),
              (Stroke{.keycode = 24, .modifiers = 0xA1}));
}

TEST(StrokePlanTest, anEvdevCodeOfItsOwnIsPlayed) {
    EXPECT_EQ(planStroke(*namedKeymap("us"), 0x1000 + 183, 0).value(), (Stroke{.keycode = 191}));
}

TEST(StrokePlanTest, aCodeWithoutAKeyIsNoStroke) {
    EXPECT_EQ(planStroke(*namedKeymap("us"), 161, modifier::shift).value(), Stroke{});
    EXPECT_EQ(planStroke(*namedKeymap("us"), 144, 0).value(), (Stroke{.keycode = 233}));
    EXPECT_EQ(planStroke(*namedKeymap("us"), 9999, 0).value(), Stroke{});
}

TEST(StrokePlanTest, thePowerKeyIsRefusedWithEveryChooser) {
    const auto us = namedKeymap("us");
    for (const std::uint32_t code : {127U, 0x200U + 127U, 0x600U + 127U}) {
        const auto stroke = planStroke(*us, code, 0);
        ASSERT_FALSE(stroke) << code;
        EXPECT_EQ(stroke.error().message, "The power key cannot be pressed by a script.");
    }
}

TEST(StrokePlanTest, aKeypadDigitNeedsNumLock) {
    const auto us = namedKeymap("us");
    EXPECT_EQ(planStroke(*us, key::keypadOne, 0).value(),
              (Stroke{.keycode = 87, .lockMask = 0x10, .lockValues = 0x10}));
}

TEST(StrokePlanTest, aKeypadDigitNeedsTheStateOfNumLockThatTypesIt) {
    // Num Lock gives arrows there.
    EXPECT_EQ(planStroke(*namedKeymap("de(neo)"), key::keypadOne, 0).value(),
              (Stroke{.keycode = 87, .lockMask = 0x10}));
    EXPECT_EQ(planStroke(*namedKeymap("us"), key::keypadOne, modifier::control).value(),
              (Stroke{.keycode = 87, .modifiers = 0x04, .lockMask = 0x10, .lockValues = 0x10}));
}

TEST(StrokePlanTest, aModifierWithoutAKeyIsNamed) {
    // The keys of Super are keys of Alt there.
    const auto stroke = planStroke(*namedKeymap("us", "altwin:alt_win"), 0, modifier::command);
    ASSERT_FALSE(stroke);
    EXPECT_EQ(stroke.error().message, "The keyboard layout has no key for Super.");
    EXPECT_EQ(stroke.error().hint, "Choose a keyboard layout that has one.");
}

TEST(ModifierKeysTest, optionsThatMoveModifiersAreFollowed) {
    EXPECT_EQ(namedKeymap("us")->keys().keyFor(0x04), 37);
    EXPECT_EQ(namedKeymap("us", "ctrl:swapcaps")->keys().keyFor(0x04), 66);
    EXPECT_EQ(namedKeymap("us", "altwin:swap_lalt_lwin")->keys().keyFor(0x08), 133);
    EXPECT_EQ(namedKeymap("us", "altwin:swap_lalt_lwin")->keys().keyFor(0x40), 64);
}

TEST(ModifierKeysTest, aKeyThatChoosesInOneGroupOnlyIsNotTaken) {
    EXPECT_EQ(namedKeymap("de")->keys().keyFor(0x80), 108);
    EXPECT_EQ(namedKeymap("us,de")->keys().keyFor(0x80), 92);
}

TEST(ModifierKeysTest, whatAnyKeyLocksOnAnyLevelIsKnown) {
    EXPECT_EQ(namedKeymap("us")->keys().lockable(), 0x12U);
    EXPECT_EQ(namedKeymap("us", "caps:shiftlock")->keys().lockable(), 0x11U);
    EXPECT_EQ(namedKeymap("us", "shift:both_capslock,caps:none")->keys().lockable(), 0x12U);
    // The fifth level is locked by one of its choosers under the other.
    EXPECT_EQ(namedKeymap("de(neo)")->keys().lockable(), 0x22U);
}

TEST(ModifierKeysTest, lockKeysHoldNothingAfterwardsButTheirLock) {
    const auto us = namedKeymap("us");
    EXPECT_TRUE(us->keys().isLock(66));
    EXPECT_TRUE(us->keys().isLock(77));
    EXPECT_FALSE(us->keys().isLock(50));
    EXPECT_EQ(us->keys().heldBy(50), 0x01);
    EXPECT_EQ(us->keys().heldBy(62), 0x01);
    EXPECT_EQ(us->keys().heldBy(38), 0);
}

}  // namespace

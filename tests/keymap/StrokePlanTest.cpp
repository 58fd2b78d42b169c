// SPDX-License-Identifier: MIT
#include "platform/keymap/StrokePlan.h"

#include <gtest/gtest.h>

#include "keymap/InjectorKeymaps.h"
#include "platform/Modifiers.h"

namespace {

constexpr std::uint32_t keypadOne = 83;

TEST(StrokePlanTest, aCodeIsItsPositionWhateverTheLayout) {
    EXPECT_EQ(injectorKeymap("us").stroke(12, 0).value(), (Stroke{.keycode = 24}));
    EXPECT_EQ(injectorKeymap("fr").stroke(12, 0).value(), (Stroke{.keycode = 24}));
}

TEST(StrokePlanTest, modifiersBecomeBitsOfTheKeymap) {
    const InjectorKeymap us = injectorKeymap("us");
    EXPECT_EQ(us.stroke(0, modifier::command | modifier::shift).value(),
              (Stroke{.keycode = 38, .modifiers = 0x41}));
    EXPECT_EQ(us.stroke(0, modifier::option | modifier::control).value(),
              (Stroke{.keycode = 38, .modifiers = 0x0C}));
}

TEST(StrokePlanTest, theFunctionKeyIsIgnored) {
    EXPECT_EQ(injectorKeymap("us").stroke(0, modifier::functionKey).value(), (Stroke{.keycode = 38}));
}

TEST(StrokePlanTest, capsLockIsLockedAroundTheStroke) {
    EXPECT_EQ(injectorKeymap("us").stroke(0, modifier::capsLock).value(),
              (Stroke{.keycode = 38, .lockMask = 0x02, .lockValues = 0x02}));
}

TEST(StrokePlanTest, chooserBitsHoldTheLevelChoosers) {
    const InjectorKeymap de = injectorKeymap("de");
    EXPECT_EQ(de.stroke(0x200 + 12, 0).value(), (Stroke{.keycode = 24, .modifiers = 0x80}));
    const auto fifth = de.stroke(0x600 + 12, 0);
    ASSERT_FALSE(fifth);
    EXPECT_EQ(fifth.error().message, "The keyboard layout has no key for the fifth level.");
    EXPECT_EQ(injectorKeymap("de(neo)").stroke(0x600 + 12, modifier::shift).value(),
              (Stroke{.keycode = 24, .modifiers = 0xA1}));
}

TEST(StrokePlanTest, anEvdevCodeOfItsOwnIsPlayed) {
    EXPECT_EQ(injectorKeymap("us").stroke(0x1000 + 183, 0).value(), (Stroke{.keycode = 191}));
}

TEST(StrokePlanTest, aCodeWithoutAKeyIsNoStroke) {
    EXPECT_EQ(injectorKeymap("us").stroke(161, modifier::shift).value(), Stroke{});
    EXPECT_EQ(injectorKeymap("us").stroke(144, 0).value(), (Stroke{.keycode = 233}));
    EXPECT_EQ(injectorKeymap("us").stroke(9999, 0).value(), Stroke{});
}

TEST(StrokePlanTest, thePowerKeyIsRefusedWithEveryChooser) {
    const InjectorKeymap us = injectorKeymap("us");
    for (const std::uint32_t code : {127U, 0x200U + 127U, 0x600U + 127U}) {
        const auto stroke = us.stroke(code, 0);
        ASSERT_FALSE(stroke) << code;
        EXPECT_EQ(stroke.error().message, "The power key cannot be pressed by a script.");
    }
}

TEST(StrokePlanTest, aKeypadDigitNeedsNumLock) {
    const InjectorKeymap us = injectorKeymap("us");
    EXPECT_EQ(us.stroke(keypadOne, 0).value(), (Stroke{.keycode = 87, .lockMask = 0x10, .lockValues = 0x10}));
}

TEST(StrokePlanTest, aModifierWithoutAKeyIsNamed) {
    const XkbContextPointer context(xkb_context_new(XKB_CONTEXT_NO_ENVIRONMENT_NAMES));
    const xkb_rule_names names{"evdev", "pc105", "us", "", ""};
    XkbKeymapPointer keymap(xkb_keymap_new_from_names(context.get(), &names, XKB_KEYMAP_COMPILE_NO_FLAGS));
    const ModifierMasks none;
    const InjectorKeymap bare(std::move(keymap), none, {});
    const auto stroke = bare.stroke(0, modifier::command);
    ASSERT_FALSE(stroke);
    EXPECT_EQ(stroke.error().message, "The keyboard layout has no key for Super.");
}

TEST(ModifierKeysTest, optionsThatMoveModifiersAreFollowed) {
    EXPECT_EQ(injectorKeymap("us").keys().keyFor(0x04), 37);
    EXPECT_EQ(injectorKeymap("us", "ctrl:swapcaps").keys().keyFor(0x04), 66);
    EXPECT_EQ(injectorKeymap("us", "altwin:swap_lalt_lwin").keys().keyFor(0x08), 133);
    EXPECT_EQ(injectorKeymap("us", "altwin:swap_lalt_lwin").keys().keyFor(0x40), 64);
}

TEST(ModifierKeysTest, aKeyThatChoosesInOneGroupOnlyIsNotTaken) {
    EXPECT_EQ(injectorKeymap("de").keys().keyFor(0x80), 108);
    EXPECT_EQ(injectorKeymap("us,de").keys().keyFor(0x80), 92);
}

TEST(ModifierKeysTest, lockKeysHoldNothingAfterwardsButTheirLock) {
    const InjectorKeymap us = injectorKeymap("us");
    EXPECT_TRUE(us.keys().isLock(66));
    EXPECT_TRUE(us.keys().isLock(77));
    EXPECT_FALSE(us.keys().isLock(50));
    EXPECT_EQ(us.keys().heldBy(50), 0x01);
    EXPECT_EQ(us.keys().heldBy(62), 0x01);
    EXPECT_EQ(us.keys().heldBy(38), 0);
}

}  // namespace

// SPDX-License-Identifier: MIT
#include "platform/keymap/Keymap.h"

#include <gtest/gtest.h>

#include "keymap/NamedKeymap.h"
#include "platform/Modifiers.h"
#include "platform/keymap/KeyboardState.h"
#include "support/Keys.h"

namespace {

TEST(KeymapTest, findsTheModifiersOfAnOrdinaryKeyboard) {
    const auto keymap = namedKeymap("de");
    const ModifierMasks& masks = keymap->masks();
    EXPECT_EQ(masks.shift, 0x01U);
    EXPECT_EQ(masks.control, 0x04U);
    EXPECT_EQ(masks.option, 0x08U);
    EXPECT_EQ(masks.command, 0x40U);
    EXPECT_EQ(masks.capsLock, 0x02U);
    EXPECT_EQ(masks.numLock, 0x10U);
    EXPECT_EQ(masks.thirdLevel, 0x80U);
    EXPECT_EQ(masks.locks(), 0x12U);
}

TEST(KeymapTest, aKeyIsAModifierByWhatItDoes) {
    const auto plain = namedKeymap("us");
    for (const std::uint8_t key : {xkey::capsLock, xkey::numLock, xkey::shift, xkey::alt, xkey::super}) {
        EXPECT_TRUE(plain->keys().isModifierKey(key, 0)) << int{key};
    }
    EXPECT_FALSE(plain->keys().isModifierKey(xkey::a, 0));
    EXPECT_FALSE(plain->keys().isModifierKey(xkey::scrollLock, 0));
    EXPECT_FALSE(namedKeymap("us", "caps:escape")->keys().isModifierKey(xkey::capsLock, 0));
    EXPECT_EQ(namedKeymap("us", "ctrl:nocaps")->keys().setBy(xkey::capsLock, 0), 0x04U);
    EXPECT_EQ(namedKeymap("de")->keys().setBy(xkey::altGr, 0), 0x80U);
}

TEST(KeymapTest, keysThatSwitchTheGroupAreOrdinaryOnes) {
    EXPECT_FALSE(namedKeymap("us,ru", "grp:caps_toggle")->keys().isModifierKey(xkey::capsLock, 0));
}

TEST(KeymapTest, swappedModifiersAreFound) {
    const auto keymap = namedKeymap("us", "altwin:swap_alt_win");
    EXPECT_EQ(keymap->reported(keymap->keys().setBy(xkey::alt, 0)), modifier::command);
    EXPECT_EQ(keymap->reported(keymap->keys().setBy(xkey::super, 0)), modifier::option);
}

TEST(KeymapTest, aMaskThereAndBackIsTheSame) {
    const auto keymap = namedKeymap("us");
    for (std::uint32_t mask : {0x0000U, 0x0100U, 0x0200U, 0x0800U, 0x1000U, 0x1B00U}) {
        EXPECT_EQ(keymap->reported(keymap->real(mask).value()), mask);
    }
    EXPECT_EQ(keymap->real(modifier::capsLock).value(), 0U);
}

TEST(KeymapTest, equalKeymapsHaveEqualFingerprints) {
    EXPECT_EQ(namedKeymap("us")->fingerprint(), namedKeymap("us")->fingerprint());
    EXPECT_NE(namedKeymap("us")->fingerprint(), namedKeymap("de")->fingerprint());
}

TEST(KeyboardStateTest, foreseesWhatTheServerWillSay) {
    KeyboardState state(namedKeymap("us"), {});
    state.feed(xkey::shift, true);
    EXPECT_EQ(state.modifiers(), 0x01U);
    state.confirm({.depressed = 0x01}, xkey::shift, true);
    EXPECT_EQ(state.modifiers(), 0x01U);
    state.feed(xkey::shift, false);
    EXPECT_EQ(state.modifiers(), 0U);
}

TEST(KeyboardStateTest, anOldConfirmationDoesNotUndoWhatCameSince) {
    KeyboardState state(namedKeymap("us"), {});
    state.feed(xkey::shift, true);
    state.feed(xkey::shift, false);
    state.confirm({.depressed = 0x01}, xkey::shift, true);
    EXPECT_EQ(state.modifiers(), 0U);
    state.confirm({}, xkey::shift, false);
    EXPECT_EQ(state.modifiers(), 0U);
}

TEST(KeyboardStateTest, theServerIsRightWhereItSaysOtherwise) {
    KeyboardState state(namedKeymap("us,ru"), {});
    state.feed(xkey::shift, true);
    state.confirm({.depressed = 0x05}, xkey::shift, true);
    EXPECT_EQ(state.modifiers(), 0x05U);
    state.confirm({.locked = 0x02, .lockedLayout = 1}, 0, false);
    EXPECT_EQ(state.modifiers(), 0x02U);
    EXPECT_EQ(state.layout(), 1U);
}

TEST(KeyboardStateTest, aNewKeymapKeepsModifiersAndGroup) {
    KeyboardState state(namedKeymap("us,ru"), {.locked = 0x12, .lockedLayout = 1});
    state.replaceKeymap(namedKeymap("us,de"));
    EXPECT_EQ(state.components(), (XkbComponents{.locked = 0x12, .lockedLayout = 1}));
    EXPECT_EQ(state.keymap().symbol(47, 0, state.layout()), static_cast<xkb_keysym_t>(XKB_KEY_odiaeresis));
}

}  // namespace

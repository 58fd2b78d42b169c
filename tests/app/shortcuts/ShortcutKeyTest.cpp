// SPDX-License-Identifier: MIT
#include "app/shortcuts/ShortcutKey.h"

#include <gtest/gtest.h>

#include <QKeyEvent>

#include "platform/Modifiers.h"
#include "support/Keys.h"

namespace {

QKeyEvent press(int key, Qt::KeyboardModifiers modifiers, quint32 scanCode) {
    return {QEvent::KeyPress, key, modifiers, scanCode, 0, 0};
}

TEST(ShortcutKeyTest, takesAPrintableKeyWithControlAltOrSuper) {
    for (const auto modifier : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier})
        EXPECT_EQ(shortcutKey(press(Qt::Key_R, modifier, xkey::r)), ShortcutKey::combination);
}

TEST(ShortcutKeyTest, wantsAModifierOtherThanShiftForKeysThatType) {
    for (const int key : {int{Qt::Key_R}, int{Qt::Key_Space}, int{Qt::Key_Return}, int{Qt::Key_Dead_Acute},
                          0x416 /* a Cyrillic letter */}) {
        EXPECT_EQ(shortcutKey(press(key, Qt::NoModifier, xkey::r)), ShortcutKey::needsModifier) << key;
        EXPECT_EQ(shortcutKey(press(key, Qt::ShiftModifier, xkey::r)), ShortcutKey::needsModifier) << key;
    }
}

TEST(ShortcutKeyTest, takesAKeyThatTypesNothingAlone) {
    for (const int key : {Qt::Key_F5, Qt::Key_Home, Qt::Key_Print, Qt::Key_VolumeUp})
        EXPECT_EQ(shortcutKey(press(key, Qt::NoModifier, xkey::f5)), ShortcutKey::combination) << key;
}

TEST(ShortcutKeyTest, waitsForMoreAfterAModifierALockOrAChooser) {
    for (const int key : {Qt::Key_Control, Qt::Key_Shift, Qt::Key_Alt, Qt::Key_Meta, Qt::Key_Super_L,
                          Qt::Key_AltGr, Qt::Key_CapsLock, Qt::Key_NumLock})
        EXPECT_EQ(shortcutKey(press(key, Qt::ControlModifier, xkey::control)), ShortcutKey::modifier) << key;
}

TEST(ShortcutKeyTest, knowsTheKeysThatEnd) {
    EXPECT_EQ(shortcutKey(press(Qt::Key_Escape, Qt::NoModifier, xkey::escape)), ShortcutKey::cancel);
    EXPECT_EQ(shortcutKey(press(Qt::Key_Backspace, Qt::NoModifier, xkey::backspace)), ShortcutKey::clear);
    EXPECT_EQ(shortcutKey(press(Qt::Key_Tab, Qt::NoModifier, xkey::tab)), ShortcutKey::leave);
    EXPECT_EQ(shortcutKey(press(Qt::Key_Backtab, Qt::ShiftModifier, xkey::tab)), ShortcutKey::leave);
}

TEST(ShortcutKeyTest, takesThoseKeysWithAModifierAsAnyOther) {
    for (const int key : {Qt::Key_Escape, Qt::Key_Backspace, Qt::Key_Tab}) {
        EXPECT_EQ(shortcutKey(press(key, Qt::ControlModifier, xkey::escape)), ShortcutKey::combination)
            << key;
    }
}

TEST(ShortcutKeyTest, doesNotTakeWhatNoKeyHasPressed) {
    EXPECT_EQ(shortcutKey(press(Qt::Key_R, Qt::ControlModifier, 0)), ShortcutKey::unknown);
}

TEST(ShortcutKeyTest, tellsKeyAndModifiersByPosition) {
    const auto all = Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier | Qt::MetaModifier;
    // The R of an ANSI keyboard, whatever letter it types.
    const KeyCombo expected{
        .flags = controlflag::control | controlflag::option | controlflag::shift | controlflag::command,
        .code = key::r};
    EXPECT_EQ(keyComboOf(press(Qt::Key_K, all, xkey::r)), expected);
}

TEST(ShortcutKeyTest, tellsKeysWithoutACodeOfTheirOwnByTheirEvdevCode) {
    constexpr quint32 volumeKeyOfSomeDevice = 247 + 8;
    EXPECT_EQ(keyComboOf(press(Qt::Key_unknown, Qt::NoModifier, volumeKeyOfSomeDevice)).code, 0x1000 + 247);
    EXPECT_EQ(keyComboOf(press(Qt::Key_unknown, Qt::NoModifier, 256)).code, -1);
    EXPECT_EQ(keyComboOf(press(Qt::Key_unknown, Qt::NoModifier, 8)).code, -1);
}

TEST(ShortcutKeyTest, leavesKeypadAndGroupOutOfTheFlags) {
    EXPECT_EQ(controlFlagsOf(Qt::KeypadModifier | Qt::GroupSwitchModifier | Qt::ControlModifier),
              controlflag::control);
}

TEST(ShortcutKeyTest, countsAModifierFromItsPressToItsRelease) {
    EXPECT_EQ(modifiersAfter(press(Qt::Key_Shift, Qt::ControlModifier, xkey::shift)),
              Qt::ControlModifier | Qt::ShiftModifier);
    const QKeyEvent release(QEvent::KeyRelease, Qt::Key_Shift, Qt::ControlModifier | Qt::ShiftModifier,
                            xkey::shift, 0, 0);
    EXPECT_EQ(modifiersAfter(release), Qt::ControlModifier);
}

}  // namespace

// SPDX-License-Identifier: MIT
#include "app/controller/ShortcutNotices.h"

#include <gtest/gtest.h>

namespace {

/// What stands beside the first field, whose combination is in that state.
QString noticeOf(const HotKeyState& state) {
    AllShortcutFacts facts;
    facts.front() = {.field = initialKeyCombo(15), .asked = initialKeyCombo(15), .state = state};
    return shortcutNotices(facts).front();
}

TEST(ShortcutNoticesTest, oneThatTheDesktopsSettingsDecideSaysWhatTheySay) {
    EXPECT_EQ(noticeOf({.status = HotKeyStatus::changed, .trigger = "Press <Control><Super>r"}),
              QStringLiteral("Set in the desktop's settings: Press <Control><Super>r"));
    EXPECT_EQ(noticeOf({.status = HotKeyStatus::changed}), QStringLiteral("Set in the desktop's settings."));
}

TEST(ShortcutNoticesTest, oneThatIsNotDecidedYetSaysSo) {
    EXPECT_EQ(noticeOf({.status = HotKeyStatus::pending}),
              QStringLiteral("The desktop has not answered yet."));
}

TEST(ShortcutNoticesTest, aRefusalSaysWhy) {
    EXPECT_EQ(noticeOf({.status = HotKeyStatus::refused, .error = Error{"It cannot be used.", ""}}),
              QStringLiteral("It cannot be used."));
}

TEST(ShortcutNoticesTest, oneThatWorksAsItWasAskedForNeedsNoNotice) {
    EXPECT_EQ(noticeOf({.status = HotKeyStatus::registered}), QString());
}

TEST(ShortcutNoticesTest, aMacrosHotKeySaysWhoElseHasIt) {
    using With = HotKeyConflict::With;
    const auto notice = [](const HotKeyConflict& conflict) {
        return macroHotKeyNotice({.status = HotKeyStatus::refused, .conflict = conflict}).toStdString();
    };
    EXPECT_EQ(notice({.with = With::shortcut, .shortcut = shortcutIndex("play")}), "Already used by Play.");
    EXPECT_EQ(notice({.with = With::macro, .macro = "work/Mail.keyrill"}), "Already used by macro \"Mail\".");
    EXPECT_EQ(notice({.with = With::other, .error = Error{"Another program uses Ctrl+Super+1.", "x"}}),
              "Another program uses Ctrl+Super+1.");
    EXPECT_EQ(macroHotKeyNotice({.status = HotKeyStatus::registered}), QString());
    EXPECT_EQ(macroHotKeyNotice({.status = HotKeyStatus::pending}),
              QStringLiteral("The desktop has not answered yet."));
}

}  // namespace

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

}  // namespace

// SPDX-License-Identifier: MIT
#include "app/controller/StatusNotice.h"

#include "app/AppTest.h"

namespace {

TEST(StatusNoticeTest, listsRefusedHotKeysAboveTheHint) {
    Journal journal;
    FakeStatusItem item(journal);
    StatusNotice notice(item);
    notice.setHint(QStringLiteral("hint"));
    notice.noteHotKey(2, {.status = HotKeyStatus::refused, .error = Error{"S cannot be used.", ""}});
    notice.noteHotKey(1, {.status = HotKeyStatus::refused, .error = Error{"R cannot be used.", ""}});
    EXPECT_EQ(item.shownNotice,
              "Start Recording has no shortcut. R cannot be used.\n"
              "Stop Recording has no shortcut. S cannot be used.\nhint");
    notice.noteHotKey(1, {.status = HotKeyStatus::registered, .error = std::nullopt});
    EXPECT_EQ(item.shownNotice, "Stop Recording has no shortcut. S cannot be used.\nhint");
}

TEST(StatusNoticeTest, oneReasonForAllIsToldOnceWithWhatToDo) {
    Journal journal;
    FakeStatusItem item(journal);
    StatusNotice notice(item);
    const HotKeyState none{.status = HotKeyStatus::refused, .error = Error{"There are none.", "Bind keys."}};
    notice.noteHotKey(1, none);
    notice.noteHotKey(3, none);
    // Two that wish what a third one has are told by the same error.
    EXPECT_EQ(item.shownNotice,
              "Start Recording has no shortcut. There are none.\nPlay has no shortcut. There are none.");
    notice.noteHotKey(2, none);
    notice.noteHotKey(4, none);
    EXPECT_EQ(item.shownNotice, "There are none. Bind keys.");
    notice.noteHotKey(4, {.status = HotKeyStatus::registered, .error = std::nullopt});
    notice.noteHotKey(3, {.status = HotKeyStatus::refused, .error = Error{"P cannot be used.", ""}});
    EXPECT_EQ(item.shownNotice,
              "Start Recording has no shortcut. There are none.\n"
              "Stop Recording has no shortcut. There are none.\nPlay has no shortcut. P cannot be used.");
}

}  // namespace

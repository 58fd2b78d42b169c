// SPDX-License-Identifier: MIT
#include "app/controller/StatusNotice.h"

#include "app/AppTest.h"

namespace {

TEST(StatusNoticeTest, listsRefusedHotKeysAboveTheHint) {
    Journal journal;
    FakeStatusItem item(journal);
    StatusNotice notice(item);
    notice.setHint(QStringLiteral("hint"));
    notice.noteHotKey(2, {.status = HotKeyStatus::refused, .error = Error{"second", ""}});
    notice.noteHotKey(1, {.status = HotKeyStatus::refused, .error = Error{"first", ""}});
    EXPECT_EQ(item.shownNotice, "first\nsecond\nhint");
    notice.noteHotKey(1, {.status = HotKeyStatus::registered, .error = std::nullopt});
    EXPECT_EQ(item.shownNotice, "second\nhint");
}

}  // namespace

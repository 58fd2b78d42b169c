// SPDX-License-Identifier: MIT
#include "app/controller/Stage.h"

#include "app/AppTest.h"
#include "app/widgets/IsShown.h"

namespace {

TEST(StageTest, bringsBackWhatItHasHiddenAndNothingElse) {
    QWidget shown;
    QWidget hidden;
    shown.show();
    Journal journal;
    FakeWindows windows(journal);
    Stage stage(windows, [&] { return std::vector<QWidget*>{&shown, nullptr, &hidden}; });
    stage.hide();
    EXPECT_FALSE(isShown(&shown));
    stage.unhide();
    EXPECT_TRUE(isShown(&shown));
    EXPECT_FALSE(isShown(&hidden));
}

TEST(StageTest, leavesOneWindowThatIsStillNeeded) {
    QWidget kept;
    QWidget other;
    kept.show();
    other.show();
    Journal journal;
    FakeWindows windows(journal);
    Stage stage(windows, [&] { return std::vector<QWidget*>{&kept, &other}; });
    stage.hide(&kept);
    EXPECT_TRUE(isShown(&kept));
    EXPECT_FALSE(isShown(&other));
}

}  // namespace

// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "app/shortcuts/PreferencesModel.h"

namespace {

constexpr KeyCombo controlF{.flags = controlflag::control, .code = 3};

class ShortcutModelTest : public testing::Test {
  protected:
    /// How often a signal came.
    struct Reports {
        int byUser = 0;
        int byProgram = 0;
        friend bool operator==(const Reports&, const Reports&) = default;
    };

    ShortcutModelTest() {
        QObject::connect(&model, &ShortcutModel::keyComboDidChange, [this] { ++reports.byUser; });
        QObject::connect(&model, &ShortcutModel::changed, [this] { ++reports.byProgram; });
    }

    ShortcutModel model;
    Reports reports;
};

TEST_F(ShortcutModelTest, reportsWhatTheUserRecords) {
    model.record(controlF);
    EXPECT_EQ(model.keyCombo(), controlF);
    EXPECT_EQ(reports, (Reports{.byUser = 1, .byProgram = 0}));
}

TEST_F(ShortcutModelTest, showsButDoesNotReportWhatTheProgramSets) {
    model.setKeyCombo(controlF);
    EXPECT_EQ(model.keyCombo(), controlF);
    EXPECT_EQ(reports, (Reports{.byUser = 0, .byProgram = 1}));
}

TEST_F(ShortcutModelTest, showsANewNoticeOnce) {
    model.setNotice(QStringLiteral("held"));
    model.setNotice(QStringLiteral("held"));
    EXPECT_EQ(reports.byProgram, 1);
}

TEST(ToggleModelTest, tellsOfChangesOnly) {
    ToggleModel model;
    int changes = 0;
    QObject::connect(&model, &ToggleModel::changed, [&changes] { ++changes; });
    model.setOn(false);
    model.setOn(true);
    EXPECT_TRUE(model.isOn());
    EXPECT_EQ(changes, 1);
}

TEST(PreferencesModelTest, startsWithControlSuperAndALetter) {
    const PreferencesModel model;
    EXPECT_EQ(model.record.keyCombo(), (KeyCombo{.flags = 0x140000, .code = 15}));
    EXPECT_EQ(model.stop.keyCombo(), (KeyCombo{.flags = 0x140000, .code = 1}));
    EXPECT_EQ(model.play.keyCombo(), (KeyCombo{.flags = 0x140000, .code = 35}));
    EXPECT_EQ(model.multiplePlay.keyCombo(), (KeyCombo{.flags = 0x140000, .code = 46}));
}

}  // namespace

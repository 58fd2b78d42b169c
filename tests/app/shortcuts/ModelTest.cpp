// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "app/shortcuts/PreferencesModel.h"

namespace {

constexpr KeyCombo controlF{.flags = controlflag::control, .code = 3};

/// Counts the signals of a shortcut.
struct Reports {
    explicit Reports(const ShortcutModel& model) {
        QObject::connect(&model, &ShortcutModel::keyComboDidChange, [this] { ++byUser; });
        QObject::connect(&model, &ShortcutModel::changed, [this] { ++byProgram; });
    }
    int byUser = 0;
    int byProgram = 0;
};

TEST(ShortcutModelTest, reportsWhatTheUserRecords) {
    ShortcutModel model;
    const Reports reports(model);
    model.record(controlF);
    EXPECT_EQ(model.keyCombo(), controlF);
    EXPECT_EQ(reports.byUser, 1);
    EXPECT_EQ(reports.byProgram, 0);
}

TEST(ShortcutModelTest, showsButDoesNotReportWhatTheProgramSets) {
    ShortcutModel model;
    const Reports reports(model);
    model.setKeyCombo(controlF);
    EXPECT_EQ(model.keyCombo(), controlF);
    EXPECT_EQ(reports.byUser, 0);
    EXPECT_EQ(reports.byProgram, 1);
}

TEST(ShortcutModelTest, showsANewNoticeOnce) {
    ShortcutModel model;
    const Reports reports(model);
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

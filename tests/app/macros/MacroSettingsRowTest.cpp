// SPDX-License-Identifier: MIT
#include "app/macros/MacroSettingsRow.h"

#include <QApplication>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QSpinBox>

#include "app/shortcuts/SRRecorderControl.h"
#include "app/widgets/NoticeLine.h"
#include "engine/EngineTest.h"

namespace {

class MacroSettingsRowTest : public EngineTest {
  protected:
    MacroSettingsRowTest() {
        QObject::connect(&row, &MacroSettingsRow::hotKeyWanted,
                         [this](KeyCombo hotKey) { hotKeys.push_back(hotKey); });
        QObject::connect(&row, &MacroSettingsRow::playWanted,
                         [this](const PlayOptions& play) { plays.push_back(play); });
        row.show();
        row.activateWindow();
        QApplication::processEvents();
    }
    template <typename Widget>
    Widget& the() {
        return *row.findChild<Widget*>();
    }

    MacroSettingsRow row;
    std::vector<KeyCombo> hotKeys;
    std::vector<PlayOptions> plays;
};

constexpr KeyCombo ctrlSuperOne{.flags = 0x140000, .code = 18};

TEST_F(MacroSettingsRowTest, showsWhatItIsToldAndTellsNothing) {
    row.showSettings(ctrlSuperOne, {.times = {7}, .speed = 0.5});
    EXPECT_EQ(the<SRRecorderControl>().displayText(), QStringLiteral("Ctrl+Super+1"));
    EXPECT_EQ(the<QSpinBox>().value(), 7);
    EXPECT_FALSE(the<QCheckBox>().isChecked());
    EXPECT_EQ(the<QDoubleSpinBox>().value(), 0.5);
    row.showSettings({}, {.times = PlayTimes::untilStopped()});
    EXPECT_EQ(the<SRRecorderControl>().displayText(), QStringLiteral("Not set"));
    EXPECT_TRUE(the<QCheckBox>().isChecked());
    EXPECT_FALSE(the<QSpinBox>().isEnabled());
    EXPECT_TRUE(hotKeys.empty());
    EXPECT_TRUE(plays.empty());
}

TEST_F(MacroSettingsRowTest, tellsWhatTheUserChangesAtOnceAndNothingElse) {
    // Finer than the field shows.
    row.showSettings({}, {.times = {2}, .speed = 1.0 / 3});
    the<QSpinBox>().stepUp();
    the<QCheckBox>().click();
    the<QCheckBox>().click();
    the<QDoubleSpinBox>().setValue(4);
    EXPECT_EQ(plays, (std::vector<PlayOptions>{{.times = {3}, .speed = 1.0 / 3},
                                               {.times = PlayTimes::untilStopped(), .speed = 1.0 / 3},
                                               {.times = {3}, .speed = 1.0 / 3},
                                               {.times = {3}, .speed = 4}}));
}

TEST_F(MacroSettingsRowTest, speedsAreThoseThatCanBePlayed) {
    EXPECT_EQ(the<QDoubleSpinBox>().value(), 1);
    the<QDoubleSpinBox>().setValue(0.1);
    the<QDoubleSpinBox>().setValue(9);
    ASSERT_EQ(plays.size(), 2U);
    EXPECT_EQ(plays[0].speed, 0.25);
    EXPECT_EQ(plays[1].speed, 4);
}

TEST_F(MacroSettingsRowTest, aCombinationIsTakenByTheField) {
    std::vector<bool> recording;
    QObject::connect(&row, &MacroSettingsRow::recordingChanged, [&](bool is) { recording.push_back(is); });
    the<SRRecorderControl>().startRecording();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_1, Qt::ControlModifier | Qt::MetaModifier, 10, 0, 0);
    QCoreApplication::sendEvent(&the<SRRecorderControl>(), &press);
    EXPECT_EQ(hotKeys, std::vector<KeyCombo>{ctrlSuperOne});
    EXPECT_EQ(recording, (std::vector<bool>{true, false}));
}

TEST_F(MacroSettingsRowTest, saysWhatShouldBeKnownOfTheHotKey) {
    row.setNotice(QStringLiteral("Already used by Play."));
    EXPECT_TRUE(the<NoticeLine>().isVisible());
    row.setNotice({});
    EXPECT_FALSE(the<NoticeLine>().isVisible());
}

}  // namespace

// SPDX-License-Identifier: MIT
#include "app/panels/PreferencesPanel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QSet>

#include "app/shortcuts/PreferencesModel.h"
#include "app/shortcuts/SRRecorderControl.h"
#include "app/shortcuts/ShortcutTitles.h"
#include "app/widgets/NoticeLine.h"
#include "engine/EngineTest.h"

namespace {

class PreferencesPanelTest : public EngineTest {
  protected:
    SRRecorderControl& field(const char* name) {
        for (auto* field : panel.findChildren<SRRecorderControl*>()) {
            if (field->accessibleName() == QLatin1String(name)) return *field;
        }
        throw std::runtime_error(name);
    }
    QCheckBox& box(const char* text) {
        for (auto* box : panel.findChildren<QCheckBox*>()) {
            if (box->text().remove(u'&') == QLatin1String(text)) return *box;
        }
        throw std::runtime_error(text);
    }
    std::vector<std::string> notices() {
        std::vector<std::string> shown;
        for (auto* line : panel.findChildren<NoticeLine*>()) {
            if (line->isVisible()) shown.push_back(line->notice().toStdString());
        }
        return shown;
    }

    /// After the layout has followed what is shown.
    int height() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        return panel.height();
    }

    PreferencesModel model;
    PreferencesPanel panel{model};
};

TEST_F(PreferencesPanelTest, showsTheFourShortcuts) {
    EXPECT_EQ(field("Start Recording").displayText().toStdString(), "Ctrl+Super+R");
    EXPECT_EQ(field("Stop Recording").displayText().toStdString(), "Ctrl+Super+S");
    EXPECT_EQ(field("Play").displayText().toStdString(), "Ctrl+Super+P");
    EXPECT_EQ(field("Play Multiple Times").displayText().toStdString(), "Ctrl+Super+M");
}

TEST_F(PreferencesPanelTest, labelsEachFieldWithAMnemonicOfItsOwn) {
    QSet<QChar> mnemonics;
    int fields = 0;
    for (const auto* label : panel.findChildren<QLabel*>()) {
        if (qobject_cast<SRRecorderControl*>(label->buddy()) != nullptr) ++fields;
        const qsizetype mark = label->buddy() == nullptr ? -1 : label->text().indexOf(u'&');
        if (mark >= 0) mnemonics.insert(label->text().at(mark + 1).toLower());
    }
    for (const auto* button : panel.findChildren<QAbstractButton*>()) {
        const qsizetype mark = button->text().indexOf(u'&');
        if (mark >= 0) mnemonics.insert(button->text().at(mark + 1).toLower());
    }
    EXPECT_EQ(fields, shortcutRows.size());
    EXPECT_EQ(mnemonics.size(), shortcutRows.size() + toggleRows.size() + 3)
        << "fields, boxes, the pauses, two buttons";
}

TEST_F(PreferencesPanelTest, keepsItsWidthWhenNoticesCome) {
    panel.show();
    const int lower = height();
    const int width = panel.width();
    model.stop.setNotice(
        QStringLiteral("Ctrl+Super+S cannot be used: another program holds it, and says so at length."));
    EXPECT_GT(height(), lower);
    EXPECT_EQ(panel.width(), width);
    model.stop.setNotice({});
    EXPECT_EQ(height(), lower);
}

TEST_F(PreferencesPanelTest, showsAndSetsTheOptions) {
    model.launchOnLogin.setOn(true);
    EXPECT_TRUE(box("Start Keyrill when I log in").isChecked());
    box("Start Keyrill when I log in").click();
    EXPECT_FALSE(model.launchOnLogin.isOn());
    box("Check for updates when Keyrill starts").click();
    EXPECT_TRUE(model.checkForUpdatesOnLaunch.isOn());
}

TEST_F(PreferencesPanelTest, showsAndSetsWhichPausesAreRecorded) {
    auto& choice = *panel.findChild<QComboBox*>();
    auto& limit = *panel.findChild<QDoubleSpinBox*>();
    EXPECT_EQ(choice.currentText().toStdString(), "Never");
    EXPECT_FALSE(limit.isEnabled());
    choice.setCurrentIndex(choice.findText(QStringLiteral("At most")));
    EXPECT_TRUE(limit.isEnabled());
    limit.setValue(2.5);
    EXPECT_EQ(model.pauses.choice(), (PauseChoice{.kind = PauseRecording::atMost, .limit = 2500}));
    choice.setCurrentIndex(choice.findText(QStringLiteral("As typed")));
    EXPECT_FALSE(limit.isEnabled());
    EXPECT_EQ(model.pauses.choice(), (PauseChoice{.kind = PauseRecording::asTyped, .limit = 2500}));
}

TEST_F(PreferencesPanelTest, followsTheChoiceOfPauses) {
    model.pauses.setChoice({.kind = PauseRecording::atMost, .limit = 60000});
    EXPECT_EQ(panel.findChild<QComboBox*>()->currentText().toStdString(), "At most");
    EXPECT_EQ(panel.findChild<QDoubleSpinBox*>()->value(), 60.0);
    model.pauses.setChoice({.kind = PauseRecording::never, .limit = 1234});
    EXPECT_EQ(model.pauses.choice().limit, 1234);
    model.pauses.setChoice({});
    EXPECT_EQ(panel.findChild<QComboBox*>()->currentText().toStdString(), "Never");
    EXPECT_EQ(panel.findChild<QDoubleSpinBox*>()->value(), 1.0);
}

TEST_F(PreferencesPanelTest, showsNoticesBelowTheirFields) {
    panel.show();
    EXPECT_TRUE(notices().empty());
    const int heightWithout = height();
    model.play.setNotice(QStringLiteral("held by <b>another</b> program"));
    EXPECT_EQ(notices(), std::vector<std::string>{"held by <b>another</b> program"});
    EXPECT_GT(height(), heightWithout);
    model.play.setNotice({});
    EXPECT_TRUE(notices().empty());
    EXPECT_EQ(height(), heightWithout);
}

TEST_F(PreferencesPanelTest, showsNothingOfTheUpdateCheckWhereThereIsNone) {
    PreferencesModel without;
    without.offersUpdateCheck = false;
    PreferencesPanel other(without);
    other.show();
    EXPECT_FALSE(other.checkForUpdatesNowButton()->isVisible());
    QStringList shown;
    for (const auto* box : other.findChildren<QCheckBox*>()) {
        if (box->isVisible()) shown.append(box->text());
    }
    QStringList others;
    for (std::size_t i = 0; i < toggleRows.size(); ++i) {
        if (i != toggleIndex("checkForUpdatesOnLaunch"))
            others.append(QString::fromLatin1(toggleRows[i].title));
    }
    EXPECT_EQ(shown, others);
}

TEST_F(PreferencesPanelTest, showsNothingOfTheConsentWhereNoneIsNeeded) {
    PreferencesModel without;
    without.offersConsent = false;
    PreferencesPanel other(without);
    other.show();
    for (const auto* box : other.findChildren<QCheckBox*>()) {
        const bool isConsent = box->text() == QLatin1String(toggleRows[toggleIndex("writeHotKeys")].title);
        EXPECT_EQ(box->isVisible(), !isConsent) << box->text().toStdString();
    }
}

TEST_F(PreferencesPanelTest, leadsTheFocusThroughAllControlsInTheirOrder) {
    panel.show();
    QStringList order;
    QWidget* const first = &field("Start Recording");
    for (QWidget* widget = first; order.isEmpty() || widget != first; widget = widget->nextInFocusChain()) {
        // A field of numbers has a line of its own that gives the focus to it.
        if ((widget->focusPolicy() & Qt::TabFocus) == 0 || widget->focusProxy() != nullptr) continue;
        const auto* button = qobject_cast<QAbstractButton*>(widget);
        order.append(button == nullptr ? widget->accessibleName() : button->text().remove(u'&'));
    }
    QStringList expected;
    for (std::size_t i = 0; i < shortcutRows.size(); ++i) expected.append(shortcutTitles(i).command);
    expected.append({QStringLiteral("Record pauses"), QStringLiteral("Longest pause in seconds")});
    for (const ToggleRow& row : toggleRows) {
        if (&row != &toggleRows[toggleIndex("checkForUpdatesOnLaunch")])
            expected.append(QString::fromLatin1(row.title).remove(u'&'));
    }
    expected.append({QStringLiteral("Check for updates when Keyrill starts"), QStringLiteral("Check Now"),
                     QStringLiteral("Close")});
    EXPECT_EQ(order.join(QLatin1Char('|')).toStdString(), expected.join(QLatin1Char('|')).toStdString());
}

}  // namespace

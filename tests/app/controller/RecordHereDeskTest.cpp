// SPDX-License-Identifier: MIT
#include "app/controller/RecordHereDesk.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "app/AppTest.h"
#include "app/RunLoop.h"
#include "app/panels/RecordHerePanel.h"
#include "core/MacroManager.h"
#include "platform/Modifiers.h"
#include "support/Keys.h"

namespace {

using Access = EventMonitor::Access;
using Told = std::vector<std::string>;

const Error refused{"Refused.", "Agree."};

/// A recording that sees no keys, where those of a window can be recorded.
class RecordHereDeskTest : public AppTest {
  protected:
    RecordHereDeskTest() {
        platform().settings.put("notFirstRun", 1);
        monitor().hasWindowKeys = true;
        controller.awakeFromNib();
        platform().hotKeys.request({2, "stop", key::s, modifier::control | modifier::command, false});
        controller.recordMacro(nullptr);
        monitor().accessChanges(Access::refused, refused);
    }
    FakeEventMonitor& monitor() { return platform().eventMonitor; }
    RecordHerePanel* panel() { return controller.recordHerePanel(); }
    QStringList words() {
        QStringList all;
        for (const auto* label : panel()->findChildren<QLabel*>()) all.append(label->text());
        return all;
    }
    QPushButton* button(const QString& text) {
        for (auto* button : panel()->findChildren<QPushButton*>()) {
            if (button->text() == text) return button;
        }
        return nullptr;
    }
    void settle() {
        runLoopWith([] { QTimer::singleShot(0, [] { QCoreApplication::exit(0); }); });
    }
};

TEST_F(RecordHereDeskTest, theRecordingGoesOnInAWindowThatSaysWhy) {
    settle();
    EXPECT_TRUE(dialogs.alerts.empty());
    EXPECT_TRUE(state().recording);
    ASSERT_NE(panel(), nullptr);
    EXPECT_TRUE(panel()->isVisible());
    EXPECT_TRUE(words().contains(QStringLiteral("Refused.")));
    EXPECT_TRUE(words().contains(QStringLiteral("Agree.")));
    EXPECT_TRUE(
        words().contains(QStringLiteral("Press Ctrl+Super+S when you are done, or close the window.")))
        << words().join(u'\n').toStdString();
    EXPECT_EQ(monitor().toldByWindow(), Told{"begin"});
}

TEST_F(RecordHereDeskTest, theCombinationIsTheDesktopsWhereItsSettingsHaveIt) {
    platform().hotKeys.desktopChanges(2, "Press <Control>F9");
    settle();
    EXPECT_TRUE(words().contains(QStringLiteral(
        "Use the combination of the desktop's settings when you are done, or close the window: "
        "Press <Control>F9")))
        << words().join(u'\n').toStdString();
}

TEST_F(RecordHereDeskTest, whatTheWindowGetsIsPassedOn) {
    settle();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, xkey::a, 0, xmask::capsLock);
    QCoreApplication::sendEvent(panel()->findChild<QLineEdit*>(), &press);
    EXPECT_EQ(monitor().toldByWindow(), (Told{"begin", "press 38 2"}));
}

TEST_F(RecordHereDeskTest, theWindowShowsWhatIsRecorded) {
    settle();
    type(key::a);
    EXPECT_EQ(panel()->findChild<QLineEdit*>()->text(), QStringLiteral("A"));
}

TEST_F(RecordHereDeskTest, closingTheWindowEndsTheRecording) {
    settle();
    type(key::a);
    panel()->close();
    EXPECT_FALSE(state().recording);
    ASSERT_TRUE(state().currentMacro);
    EXPECT_EQ(state().currentMacro->displayText(), "A");
}

TEST_F(RecordHereDeskTest, itsButtonEndsTheRecording) {
    settle();
    ASSERT_NE(button(QStringLiteral("Stop Recording")), nullptr);
    button(QStringLiteral("Stop Recording"))->click();
    EXPECT_FALSE(state().recording);
    EXPECT_FALSE(panel()->isVisible());
}

TEST_F(RecordHereDeskTest, theEndOfTheRecordingClosesTheWindow) {
    settle();
    controller.stopMacro(nullptr);
    EXPECT_FALSE(panel()->isVisible());
}

TEST_F(RecordHereDeskTest, theManualIsAClickAway) {
    settle();
    button(QStringLiteral("How to Record Everywhere"))->click();
    EXPECT_EQ(platform().journal.of({"openUrl"}).size(), 1U);
    EXPECT_TRUE(state().recording);
}

TEST_F(RecordHereDeskTest, aRecordingThatTheUserHasStoppedMeanwhileShowsNothing) {
    controller.stopMacro(nullptr);
    settle();
    EXPECT_EQ(panel(), nullptr);
    EXPECT_EQ(monitor().toldByWindow(), Told{});
}

TEST_F(RecordHereDeskTest, theButtonIsNamedWhereNoCombinationEndsTheRecording) {
    platform().hotKeys.withdraw(2);
    settle();
    QStringList words;
    for (const auto* label : panel()->findChildren<QLabel*>()) words.append(label->text());
    EXPECT_TRUE(
        words.contains(QStringLiteral("Press Stop Recording or close the window when you are done.")));
}

}  // namespace

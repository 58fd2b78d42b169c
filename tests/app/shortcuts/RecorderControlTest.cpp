// SPDX-License-Identifier: MIT
#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolButton>
#include <QVBoxLayout>

#include "app/shortcuts/SRRecorderControl.h"
#include "app/shortcuts/ShortcutModel.h"
#include "engine/EngineTest.h"
#include "platform/Modifiers.h"

namespace {

constexpr quint32 keyR = 27;
constexpr quint32 keyP = 33;
constexpr std::uint32_t controlSuper = controlflag::control | controlflag::command;
constexpr KeyCombo controlSuperR{.flags = controlSuper, .code = 15};
constexpr KeyCombo controlP{.flags = controlflag::control, .code = 35};

/// The shortcut field as the user meets it, in a window with one more field below.
class RecorderControlTest : public EngineTest {
  protected:
    RecorderControlTest() {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(field);
        layout->addWidget(below);
        QObject::connect(&model, &ShortcutModel::keyComboDidChange, [this] { ++reports; });
        window.show();
        window.activateWindow();
        QApplication::processEvents();
        below->setFocus();
    }

    /// As the window system gives a key to whoever has the focus.
    void send(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers = {}, quint32 scanCode = 0,
              bool isRepeat = false) {
        QKeyEvent event(type, key, modifiers, scanCode, 0, 0, QString(), isRepeat);
        QCoreApplication::sendEvent(window.focusWidget(), &event);
    }
    void press(int key, Qt::KeyboardModifiers modifiers = {}, quint32 scanCode = 0) {
        send(QEvent::KeyPress, key, modifiers, scanCode);
    }
    void click() {
        QMouseEvent event(QEvent::MouseButtonPress, QPointF(5, 5), field->mapToGlobal(QPointF(5, 5)),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(field, &event);
    }
    QTimer& timer(const QString& name) const { return *field->findChild<QTimer*>(name); }
    static void letRunOut(QTimer& timer) {
        ASSERT_TRUE(timer.isActive());
        EXPECT_TRUE(QMetaObject::invokeMethod(&timer, "timeout"));
    }
    std::string text() const { return field->displayText().toStdString(); }

    ShortcutModel model{controlSuperR};
    int reports = 0;
    QWidget window;
    SRRecorderControl* field = new SRRecorderControl(model, QStringLiteral("Play"));
    QWidget* below = [] {
        auto* widget = new QWidget;
        widget->setFocusPolicy(Qt::StrongFocus);
        return widget;
    }();
};

TEST_F(RecorderControlTest, showsTheCombinationAsTheDesktopWritesIt) {
    EXPECT_EQ(text(), "Ctrl+Super+R");
    model.setKeyCombo({.flags = controlSuper | controlflag::shift | controlflag::option, .code = 35});
    EXPECT_EQ(text(), "Ctrl+Alt+Shift+Super+P");
    model.setKeyCombo({});
    EXPECT_EQ(text(), "Not set");
}

TEST_F(RecorderControlTest, startsOnAClick) {
    click();
    EXPECT_TRUE(field->isRecording());
    EXPECT_EQ(window.focusWidget(), field);
    EXPECT_EQ(text(), "Press a combination…");
}

TEST_F(RecorderControlTest, startsOnSpaceAndReturn) {
    for (const int key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        field->setFocus();
        EXPECT_FALSE(field->isRecording()) << key;
        press(key);
        EXPECT_TRUE(field->isRecording()) << key;
        press(Qt::Key_Escape);
    }
}

TEST_F(RecorderControlTest, recordsOneCombinationAndReportsItOnce) {
    click();
    press(Qt::Key_Control);
    press(Qt::Key_P, Qt::ControlModifier, keyP);
    EXPECT_EQ(model.keyCombo(), controlP);
    EXPECT_EQ(reports, 1);
    EXPECT_FALSE(field->isRecording());
    press(Qt::Key_R, Qt::ControlModifier, keyR);
    EXPECT_EQ(model.keyCombo(), controlP);
}

TEST_F(RecorderControlTest, showsTheModifiersThatAreHeld) {
    click();
    press(Qt::Key_Control);
    press(Qt::Key_Super_L, Qt::ControlModifier);
    EXPECT_EQ(text(), "Ctrl+Super+…");
    send(QEvent::KeyRelease, Qt::Key_Control, Qt::ControlModifier | Qt::MetaModifier);
    EXPECT_EQ(text(), "Super+…");
}

TEST_F(RecorderControlTest, asksForAModifierAndGoesOn) {
    click();
    press(Qt::Key_P, Qt::NoModifier, keyP);
    EXPECT_EQ(text(), "Add Ctrl, Alt or Super");
    EXPECT_TRUE(field->isRecording());
    press(Qt::Key_P, Qt::ControlModifier, keyP);
    EXPECT_EQ(model.keyCombo(), controlP);
}

TEST_F(RecorderControlTest, holdsTheKeyboardUntilTheKeyIsReleased) {
    EXPECT_EQ(QWidget::keyboardGrabber(), nullptr);
    click();
    EXPECT_EQ(QWidget::keyboardGrabber(), field);
    press(Qt::Key_P, Qt::ControlModifier, keyP);
    EXPECT_EQ(QWidget::keyboardGrabber(), field);
    send(QEvent::KeyRelease, Qt::Key_P, Qt::ControlModifier, keyP, true);
    EXPECT_FALSE(timer(QStringLiteral("repeatGap")).isActive());
    send(QEvent::KeyRelease, Qt::Key_P, Qt::ControlModifier, keyP);
    letRunOut(timer(QStringLiteral("repeatGap")));
    EXPECT_EQ(QWidget::keyboardGrabber(), nullptr);
}

TEST_F(RecorderControlTest, holdsTheKeyboardWhereTheToolkitMistakesARepeatForARelease) {
    click();
    press(Qt::Key_P, Qt::ControlModifier, keyP);
    send(QEvent::KeyRelease, Qt::Key_P, Qt::ControlModifier, keyP);
    press(Qt::Key_P, Qt::ControlModifier, keyP);
    EXPECT_FALSE(timer(QStringLiteral("repeatGap")).isActive());
    EXPECT_EQ(QWidget::keyboardGrabber(), field);
}

TEST_F(RecorderControlTest, keepsTheCombinationOnEscape) {
    click();
    press(Qt::Key_Escape);
    EXPECT_FALSE(field->isRecording());
    EXPECT_EQ(text(), "Ctrl+Super+R");
    EXPECT_EQ(reports, 0);
    EXPECT_EQ(QWidget::keyboardGrabber(), nullptr);
}

TEST_F(RecorderControlTest, leavesForTheNextFieldOnTab) {
    click();
    press(Qt::Key_Tab);
    EXPECT_FALSE(field->isRecording());
    EXPECT_EQ(window.focusWidget(), below);
    EXPECT_EQ(reports, 0);
}

TEST_F(RecorderControlTest, endsWithTheFocusAndOnASecondClick) {
    click();
    below->setFocus();
    EXPECT_FALSE(field->isRecording());
    click();
    click();
    EXPECT_FALSE(field->isRecording());
    EXPECT_EQ(QWidget::keyboardGrabber(), nullptr);
    EXPECT_EQ(reports, 0);
}

TEST_F(RecorderControlTest, endsAfterFiveSeconds) {
    click();
    QTimer& patience = timer(QStringLiteral("patience"));
    EXPECT_EQ(patience.interval(), 5000);
    letRunOut(patience);
    EXPECT_FALSE(field->isRecording());
    EXPECT_EQ(QWidget::keyboardGrabber(), nullptr);
}

TEST_F(RecorderControlTest, endsWhenItIsHidden) {
    click();
    window.hide();
    EXPECT_FALSE(field->isRecording());
    EXPECT_EQ(QWidget::keyboardGrabber(), nullptr);
}

TEST_F(RecorderControlTest, clearsOnBackspaceWhileRecordingAndBefore) {
    field->setFocus();
    press(Qt::Key_Backspace);
    EXPECT_EQ(model.keyCombo(), KeyCombo{});
    model.setKeyCombo(controlP);
    click();
    press(Qt::Key_Backspace, Qt::NoModifier, 22);
    EXPECT_EQ(model.keyCombo(), KeyCombo{});
    EXPECT_EQ(reports, 2);
}

TEST_F(RecorderControlTest, clearsByItsButton) {
    auto* button = field->findChild<QToolButton*>();
    EXPECT_TRUE(button->isVisible());
    button->click();
    EXPECT_EQ(model.keyCombo(), KeyCombo{});
    EXPECT_EQ(reports, 1);
    EXPECT_FALSE(button->isVisible());
}

TEST_F(RecorderControlTest, reportsNothingThatTheProgramSets) {
    model.setKeyCombo(controlP);
    EXPECT_EQ(text(), "Ctrl+P");
    EXPECT_EQ(reports, 0);
}

TEST_F(RecorderControlTest, ignoresRepeatsOfTheKeyThatStartedIt) {
    field->setFocus();
    press(Qt::Key_Return);
    send(QEvent::KeyPress, Qt::Key_Return, Qt::ControlModifier, 36, true);
    EXPECT_TRUE(field->isRecording());
    EXPECT_EQ(reports, 0);
}

TEST_F(RecorderControlTest, takesKeysBeforeMnemonicsDo) {
    click();
    QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_P, Qt::AltModifier, keyP, 0, 0);
    event.ignore();
    QCoreApplication::sendEvent(field, &event);
    EXPECT_TRUE(event.isAccepted());
}

TEST_F(RecorderControlTest, isAButtonToAssistiveTechnology) {
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(field);
    EXPECT_EQ(accessible->role(), QAccessible::Button);
    EXPECT_EQ(accessible->text(QAccessible::Name).toStdString(), "Play");
    EXPECT_EQ(accessible->text(QAccessible::Value).toStdString(), "Ctrl+Super+R");
    EXPECT_EQ(accessible->text(QAccessible::Description).toStdString(), "Ctrl+Super+R");
    accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(field->isRecording());
    EXPECT_TRUE(accessible->state().pressed);
    EXPECT_EQ(accessible->text(QAccessible::Value).toStdString(), "Press a combination…");
}

}  // namespace

// SPDX-License-Identifier: MIT
#include "app/macros/MacroEditor.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QListView>

#include "app/macros/KeysView.h"
#include "app/macros/ScriptEditor.h"
#include "engine/EngineTest.h"
#include "support/Keys.h"

namespace {

std::string recording(const std::string& lines) {
    return std::string(steps::firstLine) + lines + std::string(steps::lastLine);
}

const std::string a = steps::keyLines(key::a, 0);
const std::string b = steps::keyLines(key::b, 0);

class MacroEditorTest : public EngineTest {
  protected:
    MacroEditorTest() {
        QObject::connect(&editor, &MacroEditor::edited, [this] { ++edits; });
        editor.showMacro(recording(a), recording(a));
    }
    std::string rows() {
        QStringList lines;
        const QAbstractItemModel& model = *editor.findChild<QListView*>()->model();
        for (int row = 0; row < model.rowCount(); ++row) lines.append(model.index(row, 0).data().toString());
        return lines.join(u'|').toStdString();
    }
    void press(QKeySequence::StandardKey keys) {
        const QKeyCombination combination = QKeySequence(keys)[0];
        QKeyEvent event(QEvent::KeyPress, combination.key(), combination.keyboardModifiers());
        QCoreApplication::sendEvent(&editor, &event);
    }
    MacroEditor editor{platform().keyboardLayout};
    int edits = 0;
};

TEST_F(MacroEditorTest, showsTheMacroAndHasChangedNothing) {
    EXPECT_EQ(editor.text(), recording(a));
    EXPECT_EQ(rows(), "a");
    editor.showScriptTab(true);
    EXPECT_EQ(editor.script().script(), recording(a));
    EXPECT_FALSE(editor.isChanged());
    EXPECT_EQ(edits, 0);
}

TEST_F(MacroEditorTest, textsWithOtherLineEndsAreNotChangedByLooking) {
    const std::string text = "delay 1\r\ndelay 2\r\n";
    editor.showMacro(text, text);
    editor.showScriptTab(true);
    EXPECT_EQ(editor.text(), text);
    editor.showScriptTab(false);
    EXPECT_EQ(editor.text(), text);
    EXPECT_EQ(edits, 0);
}

TEST_F(MacroEditorTest, whatIsDoneUnderKeysIsSeenUnderScript) {
    editor.keys().insertLines(b);
    EXPECT_EQ(edits, 1);
    EXPECT_TRUE(editor.isChanged());
    editor.showScriptTab(true);
    EXPECT_EQ(editor.script().script(), recording(a + b));
    editor.showScriptTab(false);
    editor.keys().insertLines(b);
    editor.showScriptTab(true);
    EXPECT_EQ(editor.script().script(), recording(a + b + b));
}

TEST_F(MacroEditorTest, whatIsTypedUnderScriptIsSeenUnderKeys) {
    editor.showScriptTab(true);
    editor.script().changeScript(recording(b));
    editor.showScriptTab(false);
    EXPECT_EQ(rows(), "b");
    EXPECT_EQ(editor.text(), recording(b));
}

TEST_F(MacroEditorTest, editsUnderKeysAreUndoneOneByOne) {
    editor.keys().insertLines(b);
    editor.keys().insertLines(steps::pauseLines(1));
    press(QKeySequence::Undo);
    EXPECT_EQ(editor.text(), recording(a + b));
    press(QKeySequence::Undo);
    EXPECT_EQ(editor.text(), recording(a));
    EXPECT_EQ(rows(), "a");
    EXPECT_FALSE(editor.isChanged());
    press(QKeySequence::Undo);
    EXPECT_EQ(editor.text(), recording(a));
    press(QKeySequence::Redo);
    EXPECT_EQ(rows(), "ab");
}

TEST_F(MacroEditorTest, whatWasTypedUnderScriptIsUndoneUnderKeysAsOneStep) {
    editor.showScriptTab(true);
    editor.script().changeScript(recording(b));
    editor.script().changeScript(recording(b + b));
    editor.showScriptTab(false);
    press(QKeySequence::Undo);
    EXPECT_EQ(editor.text(), recording(a));
}

TEST_F(MacroEditorTest, whatWasNotSavedIsShownAsChanged) {
    editor.showMacro(recording(a), recording(b));
    EXPECT_EQ(rows(), "b");
    EXPECT_TRUE(editor.isChanged());
    editor.noteSaved();
    EXPECT_FALSE(editor.isChanged());
}

TEST_F(MacroEditorTest, anotherMacroForgetsWhatWasDoneToTheFirst) {
    editor.keys().insertLines(b);
    editor.showMacro(recording(b), recording(b));
    press(QKeySequence::Undo);
    EXPECT_EQ(editor.text(), recording(b));
}

}  // namespace

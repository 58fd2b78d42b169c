// SPDX-License-Identifier: MIT
#include "app/macros/ScriptEditor.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QCompleter>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QTextBlock>
#include <algorithm>

namespace {

class ScriptEditorTest : public testing::Test {
  protected:
    ScriptEditorTest() {
        editor.resize(500, 300);
        editor.show();
    }
    void type(const QString& text) {
        for (const QChar letter : text) press(0, QString(letter));
    }
    void press(int key, const QString& text = {}, Qt::KeyboardModifiers modifiers = {}) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
        QCoreApplication::sendEvent(&editor, &event);
    }
    QAbstractItemView& popup() { return *editor.findChild<QCompleter*>()->popup(); }
    ScriptEditor editor;
};

TEST_F(ScriptEditorTest, holdsTheScriptAsItIs) {
    for (const char* script : {"", "one\n", "one\n\n\ttwo", "no\u00A0break -- é\n"}) {
        editor.setScript(script);
        EXPECT_EQ(editor.script(), script);
    }
}

TEST_F(ScriptEditorTest, tellsWhatTheCompilerSaysOfALine) {
    editor.setScript("tell application \"System Events\"\n\tkey cod 1\nend tell\n");
    ASSERT_EQ(editor.problems().size(), 1U);
    EXPECT_EQ(editor.problems()[0].line, 2);
    EXPECT_TRUE(editor.problems()[0].isError);
    editor.setScript("tell application \"System Events\" to key code 600\n");
    ASSERT_EQ(editor.problems().size(), 1U);
    EXPECT_FALSE(editor.problems()[0].isError);
    editor.setScript("tell application \"System Events\" to key code 1\n");
    EXPECT_TRUE(editor.problems().empty());
}

TEST_F(ScriptEditorTest, whatTheCompilerSaysCanBeReadOut) {
    editor.setScript("beep\ntell application\n");
    ASSERT_EQ(editor.problems().size(), 1U);
    EXPECT_EQ(editor.accessibleDescription().toStdString(), "Line 2: " + editor.problems()[0].text);
    editor.setScript("beep\n");
    EXPECT_EQ(editor.accessibleDescription(), QString());
}

TEST_F(ScriptEditorTest, makesRoomBelowTheLineForIt) {
    editor.setScript("delay 1\ndelay 1\n");
    const qreal without =
        editor.document()->documentLayout()->blockBoundingRect(editor.document()->begin()).height();
    editor.setScript("tell application\ndelay 1\n");
    ASSERT_EQ(editor.problems().size(), 1U);
    const QTextBlock first = editor.document()->begin();
    EXPECT_GT(editor.document()->documentLayout()->blockBoundingRect(first).height(), without);
    EXPECT_EQ(editor.document()->documentLayout()->blockBoundingRect(first.next()).height(), without);
}

TEST_F(ScriptEditorTest, aChangeFromElsewhereCanBeUndone) {
    editor.setScript("one\ntwé\nthree\n");
    editor.changeScript("one\ntwè\nthree\n");
    EXPECT_EQ(editor.script(), "one\ntwè\nthree\n");
    editor.undo();
    EXPECT_EQ(editor.script(), "one\ntwé\nthree\n");
    editor.undo();
    EXPECT_EQ(editor.script(), "one\ntwé\nthree\n") << "nothing before it can be";
}

TEST_F(ScriptEditorTest, offersTheWordsThatBeginSo) {
    type(QStringLiteral("keys"));
    EXPECT_TRUE(popup().isVisible());
    EXPECT_EQ(popup().model()->index(0, 0).data().toString(), QStringLiteral("keystroke"));
    press(Qt::Key_Escape);
}

TEST_F(ScriptEditorTest, aLineEndsWhereNoWordWasChosen) {
    type(QStringLiteral("key"));
    ASSERT_TRUE(popup().isVisible());
    press(Qt::Key_Return, QStringLiteral("\r"));
    EXPECT_FALSE(popup().isVisible());
    EXPECT_EQ(editor.script(), "key\n");
}

TEST_F(ScriptEditorTest, offersNothingInTextsAndComments) {
    type(QStringLiteral("\"keys"));
    EXPECT_FALSE(popup().isVisible());
    editor.setScript({});
    type(QStringLiteral("-- keys"));
    EXPECT_FALSE(popup().isVisible());
}

TEST_F(ScriptEditorTest, showsNumbersOfAllLines) {
    editor.setScript("1\n");
    const int few = editor.numbersWidth();
    editor.setScript(std::string(20'000, '\n'));
    EXPECT_GT(editor.numbersWidth(), few);
}

TEST_F(ScriptEditorTest, runsFromLeftToRightInEveryLanguage) {
    EXPECT_EQ(editor.layoutDirection(), Qt::LeftToRight);
}

TEST(ScriptPhrasesTest, areWhatIsTypedOfCommandsAndStatements) {
    const std::vector<std::string> phrases = scriptPhrases();
    for (const char* phrase :
         {"ASCII character", "choose from list", "current date", "delay", "display dialog", "end repeat",
          "key code", "keystroke", "repeat", "set the clipboard to", "tell application \"System Events\""}) {
        EXPECT_NE(std::find(phrases.begin(), phrases.end(), phrase), phrases.end()) << phrase;
    }
    for (const std::string& phrase : phrases) {
        EXPECT_EQ(phrase.find_first_of("[]|()"), std::string::npos) << phrase;
        EXPECT_FALSE(phrase.ends_with(' ')) << phrase;
    }
    EXPECT_TRUE(std::is_sorted(phrases.begin(), phrases.end()));
}

}  // namespace

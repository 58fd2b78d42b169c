// SPDX-License-Identifier: MIT
#include "app/macros/ScriptColours.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace {

/// The spans as words: "keyword:tell text:"hi"", and what the line ends in.
std::string read(const QString& line, ScriptLineState begin = 0) {
    static const char* const names[] = {"keyword", "command", "number", "text", "comment", "fault"};
    const ScriptLine result = readScriptLine(line, begin);
    QStringList words;
    for (const ScriptSpan& span : result.spans) {
        words.append(QLatin1String(names[static_cast<int>(span.part)]) + u':' +
                     line.mid(span.begin, span.length));
    }
    if (result.end != 0) words.append(QStringLiteral("> %1").arg(result.end));
    return words.join(u' ').toStdString();
}

TEST(ScriptColoursTest, readsAsTheLanguageDoes) {
    EXPECT_EQ(read(QStringLiteral("tell application \"System Events\"")),
              "keyword:tell command:application text:\"System Events\"");
    EXPECT_EQ(read(QStringLiteral("\tkey code (1) using {command down}")),
              "command:key command:code number:1 command:using command:command command:down");
    EXPECT_EQ(read(QStringLiteral("set greeting to 3")), "keyword:set keyword:to number:3");
    EXPECT_EQ(read(QString()), "");
}

TEST(ScriptColoursTest, commentsEndWithTheirLine) {
    EXPECT_EQ(read(QStringLiteral("delay 1 -- a moment")), "command:delay number:1 comment:-- a moment");
    EXPECT_EQ(read(QStringLiteral("# all of it  ")), "comment:# all of it");
}

TEST(ScriptColoursTest, blocksGoOnOverLinesAndWithinEachOther) {
    EXPECT_EQ(read(QStringLiteral("delay (* a")), "command:delay comment:(* a > 2");
    EXPECT_EQ(read(QStringLiteral("b (* c"), 2), "comment:b (* c > 3");
    EXPECT_EQ(read(QStringLiteral("d *) e"), 3), "comment:d *) e > 2");
    EXPECT_EQ(read(QStringLiteral("f *) 1"), 2), "comment:f *) number:1");
}

TEST(ScriptColoursTest, textsGoOnOverLines) {
    EXPECT_EQ(read(QStringLiteral("keystroke \"one")), "command:keystroke text:\"one > 1");
    EXPECT_EQ(read(QStringLiteral("two\" & 2"), 1), "text:two\" number:2");
}

TEST(ScriptColoursTest, countsCharactersAsTheEditorDoes) {
    EXPECT_EQ(read(QString::fromUtf8("keystroke \"😀é\" -- ß")), "command:keystroke text:\"😀é\" comment:-- ß");
}

TEST(ScriptColoursTest, showsWhatCannotBeRead) {
    EXPECT_EQ(read(QStringLiteral("1 ? 2")), "number:1 fault:? number:2");
}

}  // namespace

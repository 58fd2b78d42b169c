// SPDX-License-Identifier: MIT
#include "app/dialogs/MacroFileName.h"

#include <gtest/gtest.h>

#include <QDir>

#include "support/Child.h"

namespace {

class MacroFileNameTest : public testing::Test {
  protected:
    std::string named(const char* name) const {
        const QDir dir(QString::fromStdString(folder.path()));
        return macroFileName(QString::fromLatin1(name), dir).toStdString();
    }

    TemporaryFolder folder;
};

TEST_F(MacroFileNameTest, getsTheSuffixWhereItIsMissing) {
    EXPECT_EQ(named("hello"), "hello.keyrill");
    EXPECT_EQ(named("my.macro"), "my.macro.keyrill");
    EXPECT_EQ(named("two words"), "two words.keyrill");
    EXPECT_EQ(named("keyrill"), "keyrill.keyrill");
    EXPECT_EQ(named("~/hello"), "~/hello.keyrill");
}

TEST_F(MacroFileNameTest, keepsTheSuffixInAnyCase) {
    EXPECT_EQ(named("hello.keyrill"), "hello.keyrill");
    EXPECT_EQ(named("HELLO.KEYRILL"), "HELLO.KEYRILL");
}

TEST_F(MacroFileNameTest, leavesFoldersAlone) {
    QDir(QString::fromStdString(folder.path())).mkdir(QStringLiteral("inner"));
    for (const char* name : {"", "~", "/", "inner", "inner/", "/tmp"}) EXPECT_EQ(named(name), name);
}

}  // namespace

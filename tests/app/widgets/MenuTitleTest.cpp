// SPDX-License-Identifier: MIT
#include "app/widgets/MenuTitle.h"

#include <gtest/gtest.h>

#include <QApplication>

namespace {

/// Texts are read from right to left meanwhile.
class RightToLeft {
  public:
    RightToLeft() { QApplication::setLayoutDirection(Qt::RightToLeft); }
    ~RightToLeft() { QApplication::setLayoutDirection(Qt::LeftToRight); }
    RightToLeft(const RightToLeft&) = delete;
    RightToLeft& operator=(const RightToLeft&) = delete;
};

TEST(MenuTitleTest, aMacroIsItsTextWithoutMnemonics) {
    EXPECT_EQ(macroMenuTitle(QStringLiteral("a && b")), QStringLiteral("a &&&& b"));
}

TEST(MenuTitleTest, aMacroKeepsItsDirectionAmongOthers) {
    const RightToLeft meanwhile;
    EXPECT_EQ(macroMenuTitle(QStringLiteral("ls -l")), QStringLiteral("\u2068ls -l\u2069"));
    EXPECT_EQ(menuTitle(QStringLiteral("Save & Load")), QStringLiteral("Save && Load"));
}

}  // namespace

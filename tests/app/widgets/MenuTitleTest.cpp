// SPDX-License-Identifier: MIT
#include "app/widgets/MenuTitle.h"

#include <gtest/gtest.h>

#include "app/RightToLeft.h"

namespace {

TEST(MenuTitleTest, aMacroIsItsTextWithoutMnemonics) {
    EXPECT_EQ(macroMenuTitle(QStringLiteral("a && b")), QStringLiteral("a &&&& b"));
}

TEST(MenuTitleTest, aMacroKeepsItsDirectionAmongOthers) {
    const RightToLeft meanwhile;
    EXPECT_EQ(macroMenuTitle(QStringLiteral("ls -l")), QStringLiteral("\u2068ls -l\u2069"));
    EXPECT_EQ(menuTitle(QStringLiteral("Save & Load")), QStringLiteral("Save && Load"));
}

}  // namespace

// SPDX-License-Identifier: MIT
//
// Whether the other KWin tests can be believed: hands there reach native programs.
#include <gtest/gtest.h>

#include "compositor/Field.h"
#include "compositor/KWin.h"
#include "compositor/KWinHands.h"
#include "support/Keys.h"

namespace {

class KWinFieldTest : public testing::TestWithParam<Field::Toolkit> {};

TEST_P(KWinFieldTest, getsTheKeysOfHandsInTheLayoutOfTheUser) {
    const KWin kwin({.layouts = "de"});
    KWinHands hands(kwin.socket());
    const Field field(kwin, GetParam());
    hands.stroke({xkey::a});
    hands.stroke({xkey::shift, xkey::z});
    EXPECT_EQ(field.text("aY"), "aY");
}

INSTANTIATE_TEST_SUITE_P(Toolkits, KWinFieldTest, testing::Values(Field::Toolkit::gtk, Field::Toolkit::qt),
                         [](const auto& toolkit) {
                             return toolkit.param == Field::Toolkit::gtk ? "gtk" : "qt";
                         });

}  // namespace

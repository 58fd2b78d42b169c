// SPDX-License-Identifier: MIT
#include "platform/EditDistance.h"

#include <gtest/gtest.h>

namespace {

TEST(EditDistanceTest, everySlipOfThePenIsOne) {
    EXPECT_EQ(editDistance("delay", "delay"), 0U);
    EXPECT_EQ(editDistance("dely", "delay"), 1U);
    EXPECT_EQ(editDistance("dellay", "delay"), 1U);
    EXPECT_EQ(editDistance("deloy", "delay"), 1U);
    EXPECT_EQ(editDistance("dealy", "delay"), 1U);
    EXPECT_EQ(editDistance("", "delay"), 5U);
    EXPECT_EQ(editDistance("retrun", "repeat"), 4U);
}

}  // namespace

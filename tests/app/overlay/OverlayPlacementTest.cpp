// SPDX-License-Identifier: MIT
#include "app/overlay/OverlayPlacement.h"

#include <gtest/gtest.h>

TEST(OverlayPlacementTest, liesInTheUpperRightCorner) {
    EXPECT_EQ(overlayOrigin({1280, 800}, {200, 60}), (OverlayOrigin{1070, 710}));
}

TEST(OverlayPlacementTest, goesBeyondTheLeftAndLowerEdgeOfAScreenThatIsTooSmall) {
    EXPECT_EQ(overlayOrigin({100, 80}, {200, 60}), (OverlayOrigin{-110, -10}));
}

// SPDX-License-Identifier: MIT
#include "platform/monitor/OwnStrokes.h"

#include <gtest/gtest.h>

#include "support/Keys.h"

namespace {

TEST(OwnStrokesTest, areKnownByCount) {
    OwnStrokes own;
    own.expect(xkey::a, true);
    own.expect(xkey::a, true);
    const RawKey pressed{.keycode = xkey::a, .press = true, .source = 5, .synthetic = true, .time = 0};
    RawKey real = pressed;
    real.synthetic = false;
    EXPECT_FALSE(own.take(real));
    EXPECT_TRUE(own.take(pressed));
    EXPECT_TRUE(own.take(pressed));
    EXPECT_FALSE(own.take(pressed));
}

}  // namespace

// SPDX-License-Identifier: MIT
#include "platform/monitor/OwnStrokes.h"

#include <gtest/gtest.h>

namespace {

constexpr std::uint8_t a = 38;

TEST(OwnStrokesTest, areKnownByCount) {
    OwnStrokes own;
    own.expect(a, true);
    own.expect(a, true);
    const RawKey pressed{.keycode = a, .press = true, .source = 5, .synthetic = true, .time = 0};
    RawKey real = pressed;
    real.synthetic = false;
    EXPECT_FALSE(own.take(real));
    EXPECT_TRUE(own.take(pressed));
    EXPECT_TRUE(own.take(pressed));
    EXPECT_FALSE(own.take(pressed));
}

}  // namespace

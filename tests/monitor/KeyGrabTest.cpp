// SPDX-License-Identifier: MIT
#include "platform/monitor/KeyGrab.h"

#include <gtest/gtest.h>

namespace {

TEST(KeyGrabTest, hasAVariantForEachSetOfLocks) {
    EXPECT_EQ((KeyGrab{.keycode = 33, .modifiers = 0x44, .locks = 0x12}.variants()),
              (std::vector<std::uint16_t>{0x44, 0x46, 0x54, 0x56}));
    EXPECT_EQ((KeyGrab{.keycode = 33, .modifiers = 0x44, .locks = 0}.variants()),
              (std::vector<std::uint16_t>{0x44}));
    EXPECT_EQ((KeyGrab{.keycode = 33, .modifiers = 0, .locks = 0x32}.variants().size()), 8U);
}

TEST(KeyGrabTest, matchesWhateverTheLocksAre) {
    const KeyGrab grab{.keycode = 33, .modifiers = 0x44, .locks = 0x12};
    EXPECT_TRUE(grab.matches(33, 0x56));
    EXPECT_FALSE(grab.matches(33, 0x45));
    EXPECT_FALSE(grab.matches(34, 0x44));
}

}  // namespace

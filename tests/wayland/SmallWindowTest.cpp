// SPDX-License-Identifier: MIT
//
// The small window that stands in for a tray.
#include <gtest/gtest.h>

#include "wayland/Places.h"

namespace {

/// KWin keeps the focus where it is by itself.
TEST(SmallWindowTest, comesUnderSwayWithoutTakingTheKeysFromWhoIsTypedInto) {
    const auto session = place::sway.open();
    const auto target = session->openTarget(place::sway.target);
    session->launch("keystroke \"x\"");
    // It comes three seconds after the start.
    ASSERT_TRUE(eventually([&] { return session->shows("Keyrill"); }, std::chrono::seconds(60)))
        << session->log();
    session->hands().type("keys");
    EXPECT_EQ(target->text("keys"), "keys");
    session->awaitRest();
    session->hands().type("more");
    EXPECT_EQ(target->text("keysmore"), "keysmore");
}

}  // namespace

// SPDX-License-Identifier: MIT
//
// The small window that stands in for a tray.
#include <gtest/gtest.h>

#include "wayland/Places.h"

namespace {

class SmallWindowTest : public testing::TestWithParam<Place> {};

INSTANTIATE_TEST_SUITE_P(Sessions, SmallWindowTest, testing::Values(place::sway, place::kwin), nameOf);

TEST_P(SmallWindowTest, comesWithoutTakingTheKeysFromWhoIsTypedInto) {
    const auto session = GetParam().open();
    const auto target = session->openTarget(GetParam().target);
    session->launch("keystroke \"x\"");
    std::string typed;
    // It comes three seconds after the start.
    const auto isThere = [&] { return session->shows("Keyrill"); };
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (!isThere() && std::chrono::steady_clock::now() < end) {
        session->hands().type("k");
        typed += 'k';
    }
    ASSERT_TRUE(isThere());
    session->hands().type("eys");
    EXPECT_EQ(target->text(typed + "eys"), typed + "eys");
}

}  // namespace

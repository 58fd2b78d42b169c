// SPDX-License-Identifier: MIT
//
// The small window that stands in for a tray.
#include <gtest/gtest.h>

#include "wayland/Places.h"

namespace {

using SmallWindowTest = testing::TestWithParam<Place>;

TEST_P(SmallWindowTest, comesWithoutTakingTheKeysFromWhoIsTypedInto) {
    const auto session = GetParam().open();
    const auto target = session->openTarget(GetParam().target);
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

const Place swayWithoutX{"swayWithoutX",
                         [] { return place::onSway({.hasSessionBus = true, .hasXServer = false}); },
                         Target::Kind::terminal};

INSTANTIATE_TEST_SUITE_P(Sessions, SmallWindowTest, testing::Values(place::sway, swayWithoutX, place::kwin),
                         nameOf);

}  // namespace

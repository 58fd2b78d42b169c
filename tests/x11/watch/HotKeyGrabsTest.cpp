// SPDX-License-Identifier: MIT
#include "platform/x11/watch/HotKeyGrabs.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "display/CoreClient.h"
#include "support/XServer.h"

namespace {

using x11::HotKeyGrabs;

class HotKeyGrabsTest : public testing::Test {
  protected:
    /// Under NumLock and Caps Lock: four grabs each.
    static KeyGrab grabOf(std::uint8_t keycode, std::uint16_t modifiers) {
        return {.keycode = keycode, .modifiers = modifiers, .locks = 0x12};
    }
    static std::vector<KeyGrabber::Wish> wishes(std::uint8_t firstKey, std::size_t count) {
        static const HotKeyRequest request;
        constexpr std::array<std::uint16_t, 8> combinations{0x00, 0x04, 0x05, 0x08, 0x0C, 0x40, 0x44, 0x4C};
        std::vector<KeyGrabber::Wish> wishes;
        for (std::size_t i = 0; i < count; ++i) {
            const auto keycode = static_cast<std::uint8_t>(firstKey + i / combinations.size());
            wishes.push_back({grabOf(keycode, combinations.at(i % combinations.size())), request});
        }
        return wishes;
    }
    /// How often the server was asked and waited for meanwhile: requests beside those that were meant.
    unsigned roundTripsOf(const std::vector<KeyGrabber::Wish>& asked, std::size_t refused) {
        const unsigned before = xcb_no_operation(grabs->connection()).sequence;
        const auto failures = grabs->grabAll(asked);
        const unsigned after = xcb_no_operation(grabs->connection()).sequence;
        EXPECT_EQ(
            static_cast<std::size_t>(std::count_if(failures.begin(), failures.end(),
                                                   [](const auto& failure) { return failure.has_value(); })),
            refused);
        return after - before - 1 - static_cast<unsigned>(4 * asked.size() + 4 * refused);
    }

    XServer server;
    std::unique_ptr<HotKeyGrabs> grabs = HotKeyGrabs::open(server.display()).value();
};

TEST_F(HotKeyGrabsTest, hundredsTakeAsManyRoundTripsAsOne) {
    EXPECT_EQ(roundTripsOf(wishes(10, 1), 0), 1U);
    EXPECT_EQ(roundTripsOf(wishes(20, 400), 0), 1U);
}

TEST_F(HotKeyGrabsTest, refusalsTakeOneMoreHoweverManyTheyAre) {
    const CoreClient other(server.display());
    for (std::uint8_t keycode = 10; keycode < 20; ++keycode) ASSERT_TRUE(other.grabKey(keycode, 0x44));
    EXPECT_EQ(roundTripsOf(wishes(10, 400), 10), 2U);
}

TEST_F(HotKeyGrabsTest, whatIsRefusedInPartIsGivenBack) {
    const CoreClient other(server.display());
    // The last of its four.
    ASSERT_TRUE(other.grabKey(10, 0x12));
    const auto failures = grabs->grabAll(wishes(10, 2));
    EXPECT_EQ(failures.at(0), "another program holds it");
    EXPECT_EQ(failures.at(1), std::nullopt);
    EXPECT_TRUE(other.grabKey(10, 0));
    EXPECT_FALSE(other.grabKey(10, 0x04));
}

}  // namespace

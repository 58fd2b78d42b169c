// SPDX-License-Identifier: MIT
#include "platform/HotKeyShares.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/KeyCodes.h"
#include "platform/fake/FakePlatform.h"
#include "support/Keys.h"

namespace {

class HotKeySharesTest : public testing::Test {
  protected:
    HotKeySharesTest() {
        listen(shares.first(), "first");
        listen(shares.second(), "second");
    }

    void listen(HotKeys& share, const std::string& name) {
        share.install([this, name](HotKeyId id) { log += name + " pressed " + std::to_string(id) + "\n"; },
                      [this, name](HotKeyId id) { log += name + " released " + std::to_string(id) + "\n"; });
        share.observe([this, name](HotKeyId id, const HotKeyState& state) {
            const bool isThere = state.status == HotKeyStatus::registered;
            log += name + (isThere ? " has " : " lacks ") + std::to_string(id) + "\n";
        });
    }

    FakePlatform platform;
    HotKeyShares shares{platform.hotKeys};
    std::string log;
};

TEST_F(HotKeySharesTest, eachHearsOfItsOwnAlone) {
    shares.first().request({.id = 3, .name = "play", .keyCode = key::f5});
    shares.second().requestAll({{.id = 1000, .name = "macro", .keyCode = key::a}});
    for (const std::uint32_t struck : {key::f5, key::a}) {
        platform.keyboard.userPresses(struck);
        platform.keyboard.userReleases(struck);
    }
    shares.second().withdraw(1000);
    EXPECT_EQ(log,
              "first has 3\nsecond has 1000\nfirst pressed 3\nfirst released 3\n"
              "second pressed 1000\nsecond released 1000\nsecond lacks 1000\n");
}

TEST_F(HotKeySharesTest, bothKnowTheState) {
    shares.first().request({.id = 3, .name = "play", .keyCode = key::f5});
    shares.second().request({.id = 1000, .name = "macro", .keyCode = key::f5});
    EXPECT_EQ(shares.second().state(1000).status, HotKeyStatus::refused);
    EXPECT_EQ(shares.second().state(1000).holder, 3U);
    EXPECT_EQ(shares.first().state(3).status, HotKeyStatus::registered);
}

}  // namespace

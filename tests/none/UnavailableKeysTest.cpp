// SPDX-License-Identifier: MIT
#include "platform/none/UnavailableKeys.h"

#include <gtest/gtest.h>

namespace {

const Error why{"The X server has no XInput.", "Use another."};

TEST(UnavailableKeysTest, answersEachRequestWithTheError) {
    UnavailableKeys keys(why);
    EXPECT_EQ(keys.eventMonitor.install({}).error(), why);
    EXPECT_EQ(keys.keyInjector.open({}).error(), why);
    EXPECT_EQ(keys.keyboardLayout.character(0, false, false).error(), why);
}

TEST(UnavailableKeysTest, refusesEachCombination) {
    UnavailableKeys keys(why);
    std::vector<HotKeyStatus> answers;
    keys.hotKeys.observe([&](HotKeyId id, const HotKeyState& state) {
        EXPECT_EQ(id, 3U);
        answers.push_back(state.status);
    });
    keys.hotKeys.request({.id = 3, .name = "play", .keyCode = 35});
    EXPECT_EQ(answers, std::vector<HotKeyStatus>{HotKeyStatus::refused});
}

}  // namespace

// SPDX-License-Identifier: MIT
#include "platform/none/NoKeys.h"

#include <gtest/gtest.h>

namespace {

const Error why{"The X server has no XInput.", "Use another."};

TEST(NoKeysTest, answersEachRequestWithTheError) {
    NoKeys keys(why);
    EXPECT_EQ(keys.eventMonitor.install({}).error(), why);
    EXPECT_EQ(keys.eventMonitor.showsKeys().error(), why);
    EXPECT_EQ(keys.keyInjector.open({}).error(), why);
    EXPECT_EQ(keys.keyboardLayout.character(0, false, false).error(), why);
}

TEST(NoKeysTest, refusesEachCombination) {
    NoKeys keys(why);
    std::vector<HotKeyStatus> answers;
    keys.hotKeys.observe([&](HotKeyId id, const HotKeyState& state) {
        EXPECT_EQ(id, 3U);
        answers.push_back(state.status);
    });
    keys.hotKeys.request({.id = 3, .name = "play", .keyCode = 35});
    EXPECT_EQ(answers, std::vector<HotKeyStatus>{HotKeyStatus::refused});
}

}  // namespace

// SPDX-License-Identifier: MIT
#include "engine/EngineState.h"

#include <gtest/gtest.h>

TEST(EngineStateTest, startsIdleWithHotKeysEnabled) {
    const EngineState state;
    EXPECT_TRUE(state.hotKeysEnabled);
    EXPECT_FALSE(state.modifiersDown);
    EXPECT_FALSE(state.playPending);
    EXPECT_FALSE(state.recording);
    EXPECT_EQ(state.pendingPlayCount, 1U);
    EXPECT_EQ(state.currentModifiers, 0U);
    EXPECT_EQ(state.lastEventTime, std::nullopt);
    EXPECT_EQ(state.recordingMacro, nullptr);
    EXPECT_EQ(state.currentMacro, nullptr);
}

TEST(EngineStateTest, isOneForTheProcess) { EXPECT_EQ(&engineState(), &engineState()); }

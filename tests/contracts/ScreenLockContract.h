// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "platform/ScreenLock.h"

/// A screen's lock and the user who locks it.
class ScreenLockWorld {
  public:
    virtual ~ScreenLockWorld() = default;

    virtual ScreenLock& lock() = 0;
    /// Both return once the loop has heard of it.
    virtual void userLocks() = 0;
    virtual void userUnlocks() = 0;
};

using MakeScreenLockWorld = std::function<std::unique_ptr<ScreenLockWorld>()>;

/// What every ScreenLock does.
class ScreenLockContract : public testing::TestWithParam<MakeScreenLockWorld> {
  protected:
    ScreenLock& lock() { return world->lock(); }

    std::unique_ptr<ScreenLockWorld> world = GetParam()();
};

TEST_P(ScreenLockContract, isFreeAtFirst) { EXPECT_FALSE(lock().isLocked()); }

TEST_P(ScreenLockContract, followsTheUser) {
    world->userLocks();
    EXPECT_TRUE(lock().isLocked());
    world->userUnlocks();
    EXPECT_FALSE(lock().isLocked());
}

TEST_P(ScreenLockContract, tellsAllObserversOfEachChangeOnce) {
    std::string told;
    lock().observe([&](bool locked) { told += locked ? "a locked, " : "a free, "; });
    lock().observe([&](bool locked) { told += locked ? "b locked, " : "b free, "; });
    world->userLocks();
    world->userUnlocks();
    EXPECT_EQ(told, "a locked, b locked, a free, b free, ");
}

TEST_P(ScreenLockContract, isKnownToItsObserversAsTheyAreTold) {
    bool isSame = false;
    lock().observe([&](bool locked) { isSame = lock().isLocked() == locked; });
    world->userLocks();
    EXPECT_TRUE(isSame);
}

// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/SettingsStore.h"

/// Settings, the file that they are stored in, and the loop.
class SettingsStoreWorld {
  public:
    virtual ~SettingsStoreWorld() = default;

    virtual SettingsStore& store() = 0;
    virtual void endTurn() = 0;
    /// What the next start would read.
    virtual std::optional<std::int64_t> stored(const std::string& key) const = 0;
    /// The next write fails.
    virtual void breakNextWrite() = 0;
    /// Writes succeed again.
    virtual void repair() = 0;
};

using MakeSettingsStoreWorld = std::function<std::unique_ptr<SettingsStoreWorld>()>;

/// What every SettingsStore does.
class SettingsStoreContract : public testing::TestWithParam<MakeSettingsStoreWorld> {
  protected:
    SettingsStore& store() { return world->store(); }

    std::unique_ptr<SettingsStoreWorld> world = GetParam()();
};

TEST_P(SettingsStoreContract, hasNothingAndNoFaultAtFirst) {
    EXPECT_EQ(store().integer("a"), std::nullopt);
    EXPECT_EQ(store().takeFault(), std::nullopt);
}

TEST_P(SettingsStoreContract, readsBackAtOnceAndStoresAtTheTurnsEnd) {
    store().setInteger("a", -1);
    store().setBool("b", true);
    EXPECT_EQ(store().integer("a"), -1);
    EXPECT_EQ(store().integer("b"), 1);
    EXPECT_EQ(world->stored("a"), std::nullopt);
    world->endTurn();
    EXPECT_EQ(world->stored("a"), -1);
    EXPECT_EQ(world->stored("b"), 1);
}

TEST_P(SettingsStoreContract, storesNowWhenAsked) {
    store().setBool("a", false);
    EXPECT_TRUE(store().synchronize());
    EXPECT_EQ(world->stored("a"), 0);
}

TEST_P(SettingsStoreContract, tellsOfAFailureToHimWhoAskedAlone) {
    world->breakNextWrite();
    store().setInteger("a", 1);
    EXPECT_FALSE(store().synchronize());
    EXPECT_EQ(store().integer("a"), 1);
    world->endTurn();
    EXPECT_EQ(store().takeFault(), std::nullopt);
}

TEST_P(SettingsStoreContract, hasAFaultWhereNobodyAsked) {
    world->breakNextWrite();
    store().setInteger("a", 1);
    world->endTurn();
    EXPECT_TRUE(store().takeFault());
    EXPECT_EQ(store().takeFault(), std::nullopt);
    EXPECT_EQ(world->stored("a"), std::nullopt);
}

TEST_P(SettingsStoreContract, storesWhatFailedWithTheNextSet) {
    world->breakNextWrite();
    store().setInteger("a", 1);
    EXPECT_FALSE(store().synchronize());
    world->repair();
    store().setInteger("b", 2);
    world->endTurn();
    EXPECT_EQ(world->stored("a"), 1);
    EXPECT_EQ(world->stored("b"), 2);
}

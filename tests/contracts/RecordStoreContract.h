// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "platform/RecordStore.h"

/// Records, the file that they are stored in, and the loop.
class RecordStoreWorld {
  public:
    virtual ~RecordStoreWorld() = default;

    virtual RecordStore& store() = 0;
    virtual void endTurn() = 0;
    /// What the next start would read.
    virtual std::map<std::string, Record> stored() const = 0;
    /// The next write fails.
    virtual void breakNextWrite() = 0;
    /// Writes succeed again.
    virtual void repair() = 0;
};

using MakeRecordStoreWorld = std::function<std::unique_ptr<RecordStoreWorld>()>;

/// What every RecordStore does.
class RecordStoreContract : public testing::TestWithParam<MakeRecordStoreWorld> {
  protected:
    using Records = std::map<std::string, Record>;

    RecordStore& store() { return world->store(); }

    std::unique_ptr<RecordStoreWorld> world = GetParam()();
};

TEST_P(RecordStoreContract, hasNothingAndNoFaultAtFirst) {
    EXPECT_EQ(store().records(), Records{});
    EXPECT_EQ(store().takeFault(), std::nullopt);
}

TEST_P(RecordStoreContract, readsBackAtOnceAndStoresAtTheTurnsEnd) {
    const Records records{{"a", {{"times", "3"}, {"speed", "0.5"}}}, {"b", {{"times", "until-stopped"}}}};
    for (const auto& [name, record] : records) store().set(name, record);
    EXPECT_EQ(store().records(), records);
    EXPECT_EQ(world->stored(), Records{});
    world->endTurn();
    EXPECT_EQ(world->stored(), records);
}

TEST_P(RecordStoreContract, putsARecordInThePlaceOfAnother) {
    store().set("a", {{"times", "3"}, {"speed", "2"}});
    EXPECT_TRUE(store().synchronize());
    store().set("a", {{"speed", "4"}});
    EXPECT_TRUE(store().synchronize());
    EXPECT_EQ(world->stored(), (Records{{"a", {{"speed", "4"}}}}));
}

TEST_P(RecordStoreContract, anEmptyRecordIsNone) {
    store().set("a", {{"times", "3"}});
    store().set("b", {{"times", "4"}});
    EXPECT_TRUE(store().synchronize());
    store().set("a", {});
    EXPECT_EQ(store().records(), (Records{{"b", {{"times", "4"}}}}));
    world->endTurn();
    EXPECT_EQ(world->stored(), (Records{{"b", {{"times", "4"}}}}));
}

TEST_P(RecordStoreContract, keepsEachName) {
    Records records;
    for (const std::string name : {"[a]", "a", "A", " a", "a ", "50%", "%41", "a=b", "#a", "group/a.keyrill",
                                   "\xE2\x80\xAE \xF0\x9F\x98\x80\xE2\x80\xAC", "\xFF\x80", "two\nlines",
                                   "\xC2\x85", "a]b[c", "d\t", "\x7F", "$HOME", "Settings"}) {
        records[name] = {{"times", std::to_string(records.size() + 2)}};
    }
    records[std::string(300, 'n')] = {{"times", "2"}};
    for (const auto& [name, record] : records) store().set(name, record);
    EXPECT_TRUE(store().synchronize());
    EXPECT_EQ(world->stored(), records);
}

TEST_P(RecordStoreContract, tellsOfAFailureToHimWhoAskedAlone) {
    world->breakNextWrite();
    store().set("a", {{"times", "3"}});
    EXPECT_FALSE(store().synchronize());
    EXPECT_TRUE(store().records().contains("a"));
    world->endTurn();
    EXPECT_EQ(store().takeFault(), std::nullopt);
}

TEST_P(RecordStoreContract, hasAFaultWhereNobodyAskedAndStoresWithTheNextSet) {
    world->breakNextWrite();
    store().set("a", {{"times", "3"}});
    world->endTurn();
    EXPECT_TRUE(store().takeFault());
    EXPECT_EQ(store().takeFault(), std::nullopt);
    EXPECT_EQ(world->stored(), Records{});
    world->repair();
    store().set("b", {{"times", "4"}});
    world->endTurn();
    EXPECT_EQ(world->stored(), (Records{{"a", {{"times", "3"}}}, {"b", {{"times", "4"}}}}));
}

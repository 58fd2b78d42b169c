// SPDX-License-Identifier: MIT
#include "prefs/PreferenceManager.h"

#include <gtest/gtest.h>

namespace {

using utils::PreferenceManager;

/// Each test has a table of its own.
class PreferenceManagerTest : public testing::Test {
  protected:
    PreferenceManagerTest() { PreferenceManager::instance().reset(); }
    ~PreferenceManagerTest() override { PreferenceManager::instance().reset(); }

    static std::size_t entryCount() { return PreferenceManager::instance()->entryCount(); }
};

TEST_F(PreferenceManagerTest, isOneForTheProcessAndStartsEmpty) {
    const auto manager = PreferenceManager::instance();
    ASSERT_TRUE(manager);
    EXPECT_EQ(PreferenceManager::instance(), manager);
    EXPECT_EQ(entryCount(), 0U);
}

TEST_F(PreferenceManagerTest, readsAMissingNameAsNoKeyAndKeepsIt) {
    EXPECT_EQ(PreferenceManager::code("record"), -1);
    EXPECT_EQ(entryCount(), 1U);
    EXPECT_EQ(PreferenceManager::flags("record"), 0U);
    EXPECT_FALSE(PreferenceManager::isMarked("record"));
    EXPECT_EQ(entryCount(), 1U);
}

TEST_F(PreferenceManagerTest, insertsTheDefaultWhicheverPartIsAskedFirst) {
    EXPECT_EQ(PreferenceManager::flags("stop"), 0U);
    EXPECT_FALSE(PreferenceManager::isMarked("play"));
    EXPECT_EQ(entryCount(), 2U);
}

TEST_F(PreferenceManagerTest, setsOnePartAndLeavesTheOthers) {
    PreferenceManager::setCode("record", 15);
    EXPECT_EQ(PreferenceManager::code("record"), 15);
    EXPECT_EQ(PreferenceManager::flags("record"), 0U);
    EXPECT_FALSE(PreferenceManager::isMarked("record"));

    PreferenceManager::setFlags("record", 0xFFFFFFFF);
    PreferenceManager::setMarked("record", true);
    EXPECT_EQ(PreferenceManager::code("record"), 15);
    EXPECT_EQ(PreferenceManager::flags("record"), 0xFFFFFFFFU);
    EXPECT_TRUE(PreferenceManager::isMarked("record"));
    EXPECT_EQ(entryCount(), 1U);
}

TEST_F(PreferenceManagerTest, keepsEntriesApart) {
    PreferenceManager::setCode("play", 35);
    PreferenceManager::setCode("multiplePlay", 46);
    PreferenceManager::setCode("record", 15);
    EXPECT_EQ(PreferenceManager::code("multiplePlay"), 46);
    EXPECT_EQ(PreferenceManager::code("play"), 35);
    EXPECT_EQ(PreferenceManager::code("record"), 15);
    EXPECT_EQ(entryCount(), 3U);
}

TEST_F(PreferenceManagerTest, comparesNamesByteByByte) {
    for (const std::string name : {"play", "Play", "pla", "plays", "pl\xC3\xA4y", ""}) {
        EXPECT_EQ(PreferenceManager::code(name), -1);
        PreferenceManager::setCode(name, 1);
    }
    EXPECT_EQ(PreferenceManager::code(std::string("play\0x", 6)), -1);
    EXPECT_EQ(entryCount(), 7U);
}

TEST_F(PreferenceManagerTest, clearsTheMarksOfAllEntriesAndNothingElse) {
    PreferenceManager::setMarked("record", true);
    PreferenceManager::setMarked("stop", true);
    PreferenceManager::setCode("stop", 1);
    PreferenceManager::clearMarks();
    EXPECT_FALSE(PreferenceManager::isMarked("record"));
    EXPECT_FALSE(PreferenceManager::isMarked("stop"));
    EXPECT_EQ(PreferenceManager::code("stop"), 1);
}

TEST_F(PreferenceManagerTest, clearsTheMarksOfAnEmptyTable) {
    PreferenceManager::clearMarks();
    EXPECT_EQ(entryCount(), 0U);
}

}  // namespace

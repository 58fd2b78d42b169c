// SPDX-License-Identifier: MIT
#include "prefs/Settings.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <tuple>

#include "platform/fake/FakeSettingsStore.h"
#include "prefs/KeyCombo.h"
#include "prefs/PreferenceManager.h"

namespace {

using utils::PreferenceManager;

class MapStore : private Journal, public FakeSettingsStore {
  public:
    explicit MapStore(const std::map<std::string, std::int64_t>& values)
        : FakeSettingsStore(static_cast<Journal&>(*this)) {
        for (const auto& [key, value] : values) put(key, value);
    }
};

class SettingsTest : public testing::Test {
  protected:
    using Combination = std::tuple<std::int16_t, std::uint32_t>;

    SettingsTest() { PreferenceManager::instance().reset(); }
    ~SettingsTest() override { PreferenceManager::instance().reset(); }

    static Combination entry(const std::string& name) {
        return {PreferenceManager::code(name), PreferenceManager::flags(name)};
    }
};

TEST_F(SettingsTest, convertsEachFlag) {
    EXPECT_EQ(hotKeyFlags(0x100000), 0x0100U);
    EXPECT_EQ(hotKeyFlags(0x080000), 0x0800U);
    EXPECT_EQ(hotKeyFlags(0x040000), 0x1000U);
    EXPECT_EQ(hotKeyFlags(0x020000), 0x0200U);
    EXPECT_EQ(hotKeyFlags(0x800000), 0x800000U);
}

TEST_F(SettingsTest, convertsSeveralFlagsAndDropsUnknownOnes) {
    EXPECT_EQ(hotKeyFlags(0x120000), 0x0300U);
    EXPECT_EQ(hotKeyFlags(0x8A0000), 0x800A00U);
    EXPECT_EQ(hotKeyFlags(0x10001), 0U);
    EXPECT_EQ(hotKeyFlags(0xFFFFFFFF), 0x801B00U);
}

TEST_F(SettingsTest, loadsTheFourCombinations) {
    loadHotKeys(MapStore({{"recordCode", 15},
                          {"recordFlags", 0x100000},
                          {"stopCode", 1},
                          {"stopFlags", 0x8A0000},
                          {"playCode", 35},
                          {"playFlags", 0x10001},
                          {"multiplePlayCode", -1},
                          {"multiplePlayFlags", 0}}));
    EXPECT_EQ(entry("record"), Combination(15, 0x0100));
    EXPECT_EQ(entry("stop"), Combination(1, 0x800A00));
    EXPECT_EQ(entry("play"), Combination(35, 0));
    EXPECT_EQ(entry("multiplePlay"), Combination(-1, 0));
}

TEST_F(SettingsTest, leavesAnEntryWhereOneOfTheTwoKeysIsMissing) {
    PreferenceManager::setCode("play", 7);
    loadHotKeys(
        MapStore({{"playCode", 35}, {"stopFlags", 0x100000}, {"recordCode", 15}, {"recordFlags", 0}}));
    EXPECT_EQ(entry("play"), Combination(7, 0));
    EXPECT_EQ(entry("stop"), Combination(-1, 0));
    EXPECT_EQ(entry("record"), Combination(15, 0));
}

TEST_F(SettingsTest, presetsNothingItself) {
    loadHotKeys(MapStore({}));
    EXPECT_EQ(PreferenceManager::instance()->entryCount(), 0U);
    for (const std::string name : {"record", "stop", "play", "multiplePlay"}) {
        EXPECT_EQ(entry(name), Combination(-1, 0)) << name;
    }
}

TEST_F(SettingsTest, cutsCodesToTheirLow16Bits) {
    loadHotKeys(MapStore({{"recordCode", 0x1000F},
                          {"recordFlags", 0x100100000},
                          {"stopCode", 0xFFFF},
                          {"stopFlags", 0},
                          {"playCode", 0x8000},
                          {"playFlags", 0}}));
    EXPECT_EQ(entry("record"), Combination(15, 0x0100));
    EXPECT_EQ(entry("stop"), Combination(-1, 0));
    EXPECT_EQ(entry("play"), Combination(-32768, 0));
}

TEST_F(SettingsTest, leavesMarksAlone) {
    PreferenceManager::setMarked("record", true);
    loadHotKeys(MapStore({{"recordCode", 15}, {"recordFlags", 0}}));
    EXPECT_TRUE(PreferenceManager::isMarked("record"));
}

TEST(KeyComboTest, isEmptyAtFirst) { EXPECT_EQ(KeyCombo(), (KeyCombo{.flags = 0, .code = -1})); }

TEST(KeyComboTest, isEqualWhenFlagsAndCodeAre) {
    const KeyCombo combo{.flags = 0x100000, .code = 15};
    EXPECT_EQ(combo, (KeyCombo{.flags = 0x100000, .code = 15}));
    EXPECT_NE(combo, (KeyCombo{.flags = 0x120000, .code = 15}));
    EXPECT_NE(combo, (KeyCombo{.flags = 0x100000, .code = 1}));
}

}  // namespace

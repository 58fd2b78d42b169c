// SPDX-License-Identifier: MIT
#include "library/MacroSettings.h"

#include <gtest/gtest.h>

namespace {

MacroSettings everything() {
    return {.hotKey = {.flags = 1310720, .code = 18},
            .play = {.times = {3}, .speed = 0.25},
            .lastPlayed = PlayedAt(std::chrono::seconds(1795341421))};
}

const Record everythingStored{{"hotKeyCode", "18"},
                              {"hotKeyFlags", "1310720"},
                              {"lastPlayed", "1795341421"},
                              {"speed", "0.25"},
                              {"times", "3"}};

TEST(MacroSettingsTest, areNoneAtFirst) {
    const MacroSettings settings = settingsFrom({});
    EXPECT_EQ(settings, MacroSettings{});
    EXPECT_FALSE(settings.hasHotKey());
    EXPECT_EQ(settings.play.times, PlayTimes{1});
    EXPECT_EQ(settings.play.speed, 1);
    EXPECT_EQ(settings.lastPlayed, std::nullopt);
    Record record;
    putSettings(record, settings);
    EXPECT_EQ(record, Record{});
}

TEST(MacroSettingsTest, areStoredFieldByField) {
    Record record;
    putSettings(record, everything());
    EXPECT_EQ(record, everythingStored);
    EXPECT_EQ(settingsFrom(record), everything());
}

TEST(MacroSettingsTest, playUntilStopped) {
    MacroSettings settings;
    settings.play.times = PlayTimes::untilStopped();
    Record record;
    putSettings(record, settings);
    EXPECT_EQ(record, (Record{{"times", "until-stopped"}}));
    EXPECT_EQ(settingsFrom(record), settings);
}

TEST(MacroSettingsTest, aHotKeyOfTheFirstKeyWithoutModifiersIsOne) {
    const MacroSettings settings = settingsFrom({{"hotKeyCode", "0"}, {"hotKeyFlags", "0"}});
    EXPECT_TRUE(settings.hasHotKey());
    EXPECT_EQ(settings.hotKey, (KeyCombo{.flags = 0, .code = 0}));
}

TEST(MacroSettingsTest, leaveOutWhatHasNoSense) {
    for (const Record& record : {
             Record{{"hotKeyCode", "18"}},
             Record{{"hotKeyFlags", "1310720"}},
             Record{{"hotKeyCode", "-1"}, {"hotKeyFlags", "0"}},
             Record{{"hotKeyCode", "99999"}, {"hotKeyFlags", "0"}},
             Record{{"hotKeyCode", "18"}, {"hotKeyFlags", "-5"}},
             Record{{"hotKeyCode", "1x"}, {"hotKeyFlags", "0"}},
             Record{{"hotKeyCode", ""}, {"hotKeyFlags", ""}},
             Record{{"times", "0"}},
             Record{{"times", "-3"}},
             Record{{"times", "often"}},
             Record{{"speed", "0.2"}},
             Record{{"speed", "4.1"}},
             Record{{"speed", "nan"}},
             Record{{"speed", "1,5"}},
             Record{{"lastPlayed", "yesterday"}},
         }) {
        EXPECT_EQ(settingsFrom(record), MacroSettings{}) << record.begin()->first << record.begin()->second;
    }
}

TEST(MacroSettingsTest, leaveWhatIsOthersInTheRecord) {
    Record record = everythingStored;
    record["colour"] = "green";
    putSettings(record, {});
    EXPECT_EQ(record, (Record{{"colour", "green"}}));
}

}  // namespace

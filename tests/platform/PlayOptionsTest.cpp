// SPDX-License-Identifier: MIT
#include "platform/PlayOptions.h"

#include <gtest/gtest.h>

namespace {

TEST(PlayOptionsTest, playsOnceAtTheUsualSpeedUnlessToldOtherwise) {
    const PlayOptions options;
    EXPECT_TRUE(options.times.goOnAfter(0));
    EXPECT_FALSE(options.times.goOnAfter(1));
    EXPECT_EQ(options.speed, 1.0);
}

TEST(PlayOptionsTest, untilStoppedHasNoLastRun) {
    EXPECT_TRUE(PlayTimes::untilStopped().goOnAfter(0));
    EXPECT_TRUE(PlayTimes::untilStopped().goOnAfter(std::int64_t{1} << 40U));
}

TEST(PlayOptionsTest, zeroAndBelowHaveNoRun) {
    EXPECT_FALSE(PlayTimes{0}.goOnAfter(0));
    EXPECT_FALSE(PlayTimes{-2}.goOnAfter(0));
}

TEST(PlayOptionsTest, timesAreWholeNumbersFromOneOnOrUntilStopped) {
    EXPECT_EQ(playTimesFromText("1"), PlayTimes{1});
    EXPECT_EQ(playTimesFromText("2147483647"), PlayTimes{2147483647});
    EXPECT_EQ(playTimesFromText("until-stopped"), PlayTimes::untilStopped());
    for (const char* text :
         {"", "0", "-1", "+1", "2147483648", "1.5", "3x", " 3", "three", "until", "Until-Stopped"}) {
        EXPECT_EQ(playTimesFromText(text), std::nullopt) << text;
    }
}

TEST(PlayOptionsTest, speedsGoFromAQuarterToFour) {
    EXPECT_EQ(playSpeedFromText("0.25"), 0.25);
    EXPECT_EQ(playSpeedFromText(".5"), 0.5);
    EXPECT_EQ(playSpeedFromText("1"), 1.0);
    EXPECT_EQ(playSpeedFromText("4"), 4.0);
    for (const char* text :
         {"", "0.249", "4.001", "0", "-1", "nan", "inf", "1e9", "1e999", "2,5", "2x", " 2"}) {
        EXPECT_EQ(playSpeedFromText(text), std::nullopt) << text;
    }
}

}  // namespace

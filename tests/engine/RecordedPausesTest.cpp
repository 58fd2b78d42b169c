// SPDX-License-Identifier: MIT
#include "engine/RecordedPauses.h"

#include <cmath>
#include <numeric>

#include "engine/Scenario.h"

namespace {

constexpr PauseChoice asTyped{.kind = PauseRecording::asTyped};
constexpr PauseChoice atMostASecond{.kind = PauseRecording::atMost, .limit = 1000};

/// The pauses before actions that come so many milliseconds after one another; 0 for none.
std::vector<double> pausesBetween(const std::vector<std::uint32_t>& gaps, const PauseChoice& choice,
                                  std::uint32_t start = 0) {
    RecordedPauses recorded;
    std::vector<double> pauses = {recorded.before(start, choice).value_or(0)};
    for (const std::uint32_t gap : gaps) pauses.push_back(recorded.before(start += gap, choice).value_or(0));
    return pauses;
}

/// When each action is played, in seconds after the first: what the script says, line for line.
std::vector<double> playedAt(const std::vector<double>& pauses) {
    std::vector<double> times;
    double now = 0;
    for (const double pause : pauses) {
        if (pause != 0) now += pause + Macro::pauseAfterAction;
        times.push_back(now);
        now += Macro::pauseAfterAction;
    }
    return times;
}

TEST(RecordedPausesTest, areNoneUnlessTheyAreAskedFor) {
    EXPECT_EQ(pausesBetween({500, 5000}, {}), (std::vector<double>{0, 0, 0}));
}

TEST(RecordedPausesTest, leaveOutWhatPlayingTakesAnyway) {
    EXPECT_EQ(pausesBetween({500}, asTyped), (std::vector<double>{0, 0.48}));
}

TEST(RecordedPausesTest, areCutWhereTheyAreTooLong) {
    EXPECT_EQ(pausesBetween({500, 1000, 60000}, atMostASecond), (std::vector<double>{0, 0.48, 0.98, 0.98}));
}

/// Whatever comes between, and for however long.
TEST(RecordedPausesTest, makeEachKeyComeWhenItWasTyped) {
    std::vector<std::uint32_t> gaps;
    for (std::uint32_t i = 0; i < 2000; ++i) gaps.push_back(5 + i * 37 % 146);
    const std::vector<double> played = playedAt(pausesBetween(gaps, asTyped));
    double typed = 0;
    for (std::size_t i = 0; i < gaps.size(); ++i) {
        typed += gaps[i] / 1000.0;
        ASSERT_NEAR(played[i + 1], typed, 0.011) << i;
    }
}

TEST(RecordedPausesTest, takeTheTimeOfHastyKeysFromThePauseBehindThem) {
    const std::vector<double> played = playedAt(pausesBetween({1, 1, 1, 500}, asTyped));
    EXPECT_NEAR(played.back(), 0.503, 1e-9);
}

TEST(RecordedPausesTest, goOnWhereTheClockWrapsAround) {
    EXPECT_EQ(pausesBetween({500}, asTyped, 0xFFFFFF00), (std::vector<double>{0, 0.48}));
}

TEST(RecordedPausesTest, leaveOutWhatTheUserHasKeptHimself) {
    RecordedPauses recorded;
    recorded.before(0, asTyped);
    recorded.addByHand(0.3);
    // 0.7 s on top, of which the key, the user's pause and this one take 0.01 s each.
    EXPECT_NEAR(recorded.before(1000, asTyped).value_or(0), 0.67, 1e-9);
    recorded.addByHand(5);
    EXPECT_EQ(recorded.before(6000, asTyped), std::nullopt);
}

TEST(RecordedPausesTest, ofTheUserHimselfAreNotCut) {
    RecordedPauses recorded;
    recorded.before(0, atMostASecond);
    recorded.addByHand(10);
    EXPECT_NEAR(recorded.before(10500, atMostASecond).value_or(0), 0.47, 1e-9);
    EXPECT_NEAR(recorded.before(11000, atMostASecond).value_or(0), 0.48, 1e-9);
}

class PausesScenarioTest : public Scenario {
  protected:
    /// A recording of an a, and a b a while later.
    void record(double seconds) {
        user.strikesRecord();
        user.waits(3);
        user.types("a");
        user.waits(seconds);
        user.types("b");
        user.waits(3);
        user.strikesStop();
    }
};

TEST_F(PausesScenarioTest, areNotKeptUntilTheUserWantsThem) {
    record(0.5);
    EXPECT_EQ(currentMacro(), "ab");
}

TEST_F(PausesScenarioTest, betweenTheFirstKeyAndTheLastAreKeptAsTyped) {
    state().pauseChoice.kind = PauseRecording::asTyped;
    record(0.5);
    EXPECT_EQ(state().currentMacro->script(), R"(tell application "System Events"
	key code (0) using {}
delay 0.01
	delay 0.48
delay 0.01
	key code (11) using {}
delay 0.01
end tell
)");
    EXPECT_EQ(overlay(), "a<⌛ 0.48>b");
}

TEST_F(PausesScenarioTest, areKeptUpToALimit) {
    state().pauseChoice = {.kind = PauseRecording::atMost, .limit = 2000};
    record(30);
    EXPECT_EQ(currentMacro(), "a<⌛ 1.98>b");
}

TEST_F(PausesScenarioTest, beginAnewWithEachRecording) {
    state().pauseChoice.kind = PauseRecording::asTyped;
    record(0.5);
    user.waits(60);
    record(0.25);
    EXPECT_EQ(currentMacro(), "a<⌛ 0.23>b");
}

TEST_F(PausesScenarioTest, thatAreSavedByHandCountOnce) {
    state().pauseChoice.kind = PauseRecording::asTyped;
    user.strikesRecord();
    user.types("a");
    user.waits(2);
    menu.savesPause();
    user.waits(0.5);
    user.types("b");
    user.strikesStop();
    EXPECT_EQ(currentMacro(), "a<⌛ 2.00><⌛ 0.47>b");
}

/// The events lie waiting, as they do while the program has something else to do.
TEST_F(PausesScenarioTest, areThoseOfTheKeysAndNotOfWhenTheyAreHeard) {
    state().pauseChoice.kind = PauseRecording::asTyped;
    user.strikesRecord();
    handleKeyEvent({KeyEventKind::keyDown, key::a, 'a', 0, 1000});
    user.waits(7);
    handleKeyEvent({KeyEventKind::keyDown, key::a, 'a', 0, 1200});
    EXPECT_EQ(overlay(), "a<⌛ 0.18>a");
}

}  // namespace

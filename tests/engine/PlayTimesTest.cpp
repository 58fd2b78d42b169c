// SPDX-License-Identifier: MIT
#include "engine/EngineTest.h"
#include "engine/MacroPlayer.h"

namespace {

class PlayTimesTest : public EngineTest {
  protected:
    using Texts = std::vector<std::string>;

    std::vector<double> sleeps() {
        std::vector<double> seconds;
        for (const auto sleep : platform().clock.sleeps()) seconds.push_back(sleep.count());
        return seconds;
    }
};

using PlayTimesDeathTest = PlayTimesTest;

TEST_F(PlayTimesTest, runsTheScriptSoOftenWithAPauseAfterEachRun) {
    state().currentMacro = macroWithScript("beep");
    playTimes(3);
    EXPECT_EQ(runs(), (Texts{"beep", "beep", "beep"}));
    EXPECT_EQ(sleeps(), (std::vector<double>{0.01, 0.01, 0.01}));
}

TEST_F(PlayTimesTest, pausesBetweenTheRunsAndNotBefore) {
    state().currentMacro = macroWithScript("beep");
    std::vector<std::size_t> sleptBeforeRun;
    platform().scripting.duringEachRun([&] { sleptBeforeRun.push_back(platform().clock.sleeps().size()); });
    playTimes(3);
    EXPECT_EQ(sleptBeforeRun, (std::vector<std::size_t>{0, 1, 2}));
}

TEST_F(PlayTimesTest, runsNothingForZeroAndBelow) {
    state().currentMacro = macroWithScript("beep");
    playTimes(0);
    playTimes(-2);
    playTimes(-2147483647 - 1);
    EXPECT_EQ(runs(), Texts{});
    EXPECT_EQ(sleeps(), std::vector<double>{});
}

TEST_F(PlayTimesTest, takesTheScriptAlsoWhenItRunsNothing) {
    state().currentMacro = MacroManager::createMacro();
    playTimes(0);
    // The text has been built and is kept: what is added now does not appear in it.
    state().currentMacro->addAction(createKeyCode(36, "↩", '\r'));
    EXPECT_EQ(state().currentMacro->script(), R"(tell application "System Events"
end tell
)");
}

TEST_F(PlayTimesTest, playsOneTextThroughoutWhateverBecomesOfTheMacro) {
    state().currentMacro = macroWithScript("first");
    platform().scripting.duringEachRun([this] {
        state().currentMacro->setScript("changed");
        state().currentMacro = macroWithScript("second");
    });
    playTimes(2);
    EXPECT_EQ(runs(), (Texts{"first", "first"}));
}

TEST_F(PlayTimesTest, survivesThatTheCurrentMacroGoesWhileItPlays) {
    state().currentMacro = macroWithScript("beep");
    platform().scripting.duringEachRun([this] {
        state().currentMacro.reset();
        MacroManager::instance().reset();
    });
    playTimes(2);
    EXPECT_EQ(runs(), (Texts{"beep", "beep"}));
}

TEST_F(PlayTimesTest, goesOnAfterAScriptWithAnError) {
    state().currentMacro = macroWithScript("beep");
    platform().scripting.failNextCall({"Expected end of line.", ""});
    playTimes(2);
    EXPECT_EQ(runs(), (Texts{"beep", "beep"}));
}

TEST_F(PlayTimesTest, endsAfterTheRunInWhichTheUserCancels) {
    state().currentMacro = macroWithScript("beep");
    platform().scripting.duringEachRun([this] {
        if (runs().size() == 2) platform().desktop.cancelPlayback();
    });
    playTimes(5);
    EXPECT_EQ(runs(), (Texts{"beep", "beep"}));
    EXPECT_EQ(sleeps(), std::vector<double>{0.01});
}

TEST_F(PlayTimesTest, anEarlierCancelDoesNotTouchTheNextPlay) {
    state().currentMacro = macroWithScript("beep");
    platform().desktop.cancelPlayback();
    playTimes(2);
    EXPECT_EQ(runs(), (Texts{"beep", "beep"}));
    EXPECT_EQ(platform().scripting.playbacksStarted(), 1);
}

TEST_F(PlayTimesDeathTest, endsTheProcessWithoutACurrentMacro) {
    EXPECT_DEATH(playTimes(1), "px != 0");
    EXPECT_DEATH(playTimes(0), "px != 0");
}

using PlayScriptTest = PlayTimesTest;

TEST_F(PlayScriptTest, playsTheTextSoOftenAndSoFastAndLeavesTheCurrentMacroAlone) {
    const auto current = macroWithScript("beep");
    state().currentMacro = current;
    playScript("delay 1", {.times = {2}, .speed = 0.5});
    EXPECT_EQ(runs(), (Texts{"delay 1", "delay 1"}));
    EXPECT_EQ(platform().scripting.speeds(), (std::vector<double>{0.5, 0.5}));
    EXPECT_EQ(state().currentMacro, current);
    EXPECT_EQ(platform().scripting.playbacksStarted(), 1);
}

TEST_F(PlayScriptTest, needsNoCurrentMacro) {
    playScript("beep", {});
    EXPECT_EQ(runs(), Texts{"beep"});
    EXPECT_EQ(state().currentMacro, nullptr);
}

TEST_F(PlayScriptTest, playsTheCurrentMacroAsFastAsItIsWrittenAfterwards) {
    state().currentMacro = macroWithScript("beep");
    playScript("delay 1", {.speed = 4});
    playTimes(1);
    EXPECT_EQ(platform().scripting.speeds(), (std::vector<double>{4, 1}));
}

TEST_F(PlayScriptTest, goesOnUntilTheUserCancels) {
    platform().scripting.duringEachRun([this] {
        if (runs().size() == 50) platform().desktop.cancelPlayback();
    });
    playScript("beep", {.times = PlayTimes::untilStopped()});
    EXPECT_EQ(runs().size(), 50U);
    EXPECT_EQ(sleeps().size(), 49U);
}

TEST_F(PlayScriptTest, thatWouldFailForEverEndsAtTheFirstFailureWhichIsThereToBeTold) {
    const ScriptFailure failure{false, 1, {"Expected end of line.", ""}};
    platform().scripting.refuse("beep beep", failure);
    playScript("beep beep", {.times = PlayTimes::untilStopped()});
    EXPECT_EQ(runs(), Texts{"beep beep"});
    EXPECT_EQ(platform().scripting.takeFailure(), failure);
}

}  // namespace

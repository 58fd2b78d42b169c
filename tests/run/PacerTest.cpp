// SPDX-License-Identifier: MIT
#include "platform/run/Pacer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace std::chrono_literals;

/// A clock that moves only when somebody waits or works, and a wait that wakes a little late.
class LateWait final : public Clock, public RunWait {
  public:
    Time now() const override { return m_now; }
    void sleepFor(Seconds) override {}
    Step<> waitUntil(Time deadline) override {
        if (deadline == Time::max()) return Halt::cancelled();
        m_now = std::max(m_now, deadline) + 100us;
        return {};
    }
    void work(std::chrono::microseconds time) { m_now += time; }
    Seconds elapsed() const { return m_now - m_start; }

  private:
    Time m_start = Time() + 1h;
    Time m_now = m_start;
};

class PacerTest : public testing::Test {
  protected:
    LateWait desktop;
    Pacer pacer{desktop, desktop};
};

TEST_F(PacerTest, aThousandPausesTakeAThousandPausesThoughEachIsLateAndStrokesTakeTime) {
    pacer.begin();
    for (int stroke = 0; stroke < 1000; ++stroke) {
        desktop.work(300us);
        EXPECT_TRUE(pacer.pause(0.01));
    }
    EXPECT_NEAR(desktop.elapsed().count(), 10.0, 0.00011);
}

TEST_F(PacerTest, aLongTextMovesThePausesAfterIt) {
    pacer.begin();
    EXPECT_TRUE(pacer.pause(0.01));
    desktop.work(300ms);
    EXPECT_TRUE(pacer.pause(0.01));
    EXPECT_NEAR(desktop.elapsed().count(), 0.3202, 0.0001);
}

TEST_F(PacerTest, aSmallLagIsMadeUp) {
    pacer.begin();
    desktop.work(15ms);
    EXPECT_TRUE(pacer.pause(0.01));
    desktop.work(1ms);
    EXPECT_TRUE(pacer.pause(0.01));
    EXPECT_NEAR(desktop.elapsed().count(), 0.0201, 0.00001);
}

TEST_F(PacerTest, theFirstPauseOfARunWithoutStrokesCountsFromItself) {
    desktop.work(15ms);
    EXPECT_TRUE(pacer.pause(0.01));
    EXPECT_NEAR(desktop.elapsed().count(), 0.0251, 0.00001);
}

TEST_F(PacerTest, whatIsNoTimeReturnsAtOnce) {
    for (const double seconds : {0.0, -1.0, -std::numeric_limits<double>::infinity(), std::nan("")}) {
        EXPECT_TRUE(pacer.pause(seconds));
    }
    EXPECT_EQ(desktop.elapsed().count(), 0);
}

TEST_F(PacerTest, whatIsBeyondTheClockLastsUntilCancelled) {
    for (const double seconds : {1e10, 1e300, std::numeric_limits<double>::infinity()}) {
        const auto paused = pacer.pause(seconds);
        ASSERT_FALSE(paused) << seconds;
        EXPECT_TRUE(paused.error().isCancelled()) << seconds;
    }
}

}  // namespace

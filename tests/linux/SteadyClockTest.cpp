// SPDX-License-Identifier: MIT
#include "platform/linux/SteadyClock.h"

#include <gtest/gtest.h>
#include <sys/time.h>

#include <csignal>
#include <limits>

namespace {

using namespace std::chrono_literals;

TEST(SteadyClockTest, goesOnAtTheMonotonicPace) {
    const SteadyClock clock;
    const auto before = std::chrono::steady_clock::now();
    const auto now = clock.now();
    EXPECT_GE(now, before);
    EXPECT_LE(now, std::chrono::steady_clock::now());
}

TEST(SteadyClockTest, sleepsAtLeastAsLongAsAskedFor) {
    SteadyClock clock;
    const auto start = clock.now();
    clock.sleepFor(3ms);
    EXPECT_GE(clock.now() - start, 3ms);
}

TEST(SteadyClockTest, roundsTheShortestSleepUp) {
    SteadyClock clock;
    const auto start = clock.now();
    clock.sleepFor(Clock::Seconds(1e-12));
    EXPECT_GT(clock.now(), start);
}

TEST(SteadyClockTest, doesNotSleepForNothing) {
    SteadyClock clock;
    const auto start = clock.now();
    clock.sleepFor(0s);
    clock.sleepFor(-1h);
    clock.sleepFor(Clock::Seconds(-std::numeric_limits<double>::infinity()));
    clock.sleepFor(Clock::Seconds(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_LT(clock.now() - start, 1h);
}

volatile std::sig_atomic_t signals = 0;

TEST(SteadyClockTest, sleepsOnAfterASignal) {
    struct sigaction count {};
    struct sigaction previous {};
    count.sa_handler = [](int) { signals = signals + 1; };
    sigaction(SIGALRM, &count, &previous);
    const itimerval eachMillisecond = {{0, 1000}, {0, 1000}};
    setitimer(ITIMER_REAL, &eachMillisecond, nullptr);

    SteadyClock clock;
    const auto start = clock.now();
    clock.sleepFor(20ms);
    const auto slept = clock.now() - start;

    const itimerval never{};
    setitimer(ITIMER_REAL, &never, nullptr);
    sigaction(SIGALRM, &previous, nullptr);
    EXPECT_GT(signals, 0);
    EXPECT_GE(slept, 20ms);
}

void sleepForeverUntilAnAlarm() {
    const itimerval soon = {{0, 0}, {0, 20000}};
    setitimer(ITIMER_REAL, &soon, nullptr);
    SteadyClock().sleepFor(Clock::Seconds(std::numeric_limits<double>::infinity()));
}

TEST(SteadyClockDeathTest, sleepsOnWhenTheLengthIsInfinite) {
    EXPECT_EXIT(sleepForeverUntilAnAlarm(), testing::KilledBySignal(SIGALRM), "");
}

}  // namespace

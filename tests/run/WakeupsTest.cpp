// SPDX-License-Identifier: MIT
#include "platform/run/Wakeups.h"

#include <gtest/gtest.h>
#include <poll.h>

namespace {

using std::chrono::hours;
using std::chrono::milliseconds;

/// Whether there is something to do, within a time that a busy machine needs at the most.
bool wakes(const Wakeups& wakeups) {
    constexpr int patience = 20000;
    pollfd entry{.fd = wakeups.fileDescriptor(), .events = POLLIN, .revents = 0};
    return poll(&entry, 1, patience) == 1;
}

TEST(WakeupsTest, theTimerWakesOnce) {
    Wakeups wakeups;
    EXPECT_FALSE(wakeups.takeTimer());
    wakeups.startTimer(milliseconds(1));
    EXPECT_TRUE(wakes(wakeups));
    EXPECT_TRUE(wakeups.takeTimer());
    EXPECT_FALSE(wakeups.takeTimer());
    wakeups.startTimer(milliseconds(1));
    EXPECT_TRUE(wakes(wakeups));
}

TEST(WakeupsTest, ofTwoEndsTheSoonerOneHolds) {
    Wakeups wakeups;
    wakeups.startTimer(hours(1));
    wakeups.startTimer(milliseconds(1));
    EXPECT_TRUE(wakes(wakeups));
    EXPECT_TRUE(wakeups.takeTimer());
    wakeups.startTimer(milliseconds(1));
    wakeups.startTimer(hours(1));
    EXPECT_TRUE(wakes(wakeups));
    EXPECT_TRUE(wakeups.takeTimer());
}

/// Whoever starts it before he has taken its end still gets that.
TEST(WakeupsTest, anEndThatHasComeIsNotPutOff) {
    Wakeups wakeups;
    wakeups.startTimer(milliseconds(1));
    ASSERT_TRUE(wakes(wakeups));
    wakeups.startTimer(hours(1));
    EXPECT_TRUE(wakeups.takeTimer());
}

TEST(WakeupsTest, aKickWakesUntilItIsTaken) {
    Wakeups wakeups;
    wakeups.kick();
    wakeups.kick();
    EXPECT_TRUE(wakes(wakeups));
    wakeups.takeKick();
    pollfd entry{.fd = wakeups.fileDescriptor(), .events = POLLIN, .revents = 0};
    EXPECT_EQ(poll(&entry, 1, 0), 0);
}

}  // namespace

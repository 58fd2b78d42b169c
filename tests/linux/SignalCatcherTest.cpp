// SPDX-License-Identifier: MIT
#include "platform/linux/SignalCatcher.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>

#include <atomic>
#include <cerrno>
#include <cstring>
#include <memory>
#include <string>

namespace {

bool isReadable(int descriptor) {
    pollfd entry{.fd = descriptor, .events = POLLIN, .revents = 0};
    return poll(&entry, 1, 0) == 1 && (entry.revents & POLLIN) != 0;
}

struct sigaction actionOf(int number) {
    struct sigaction action {};
    sigaction(number, nullptr, &action);
    return action;
}

/// One for each of the signals that end a program.
class SignalCatcherTest : public testing::TestWithParam<int> {};

TEST_P(SignalCatcherTest, remembersTheNumber) {
    const SignalCatcher catcher(nullptr, nullptr);
    EXPECT_EQ(catcher.number(), 0);
    raise(GetParam());
    EXPECT_EQ(catcher.number(), GetParam());
}

TEST_P(SignalCatcherTest, becomesReadableAndStaysSo) {
    const SignalCatcher catcher(nullptr, nullptr);
    EXPECT_FALSE(isReadable(catcher.fileDescriptor()));
    raise(GetParam());
    EXPECT_TRUE(isReadable(catcher.fileDescriptor()));
    EXPECT_TRUE(isReadable(catcher.fileDescriptor()));
}

TEST_P(SignalCatcherTest, callsTheFunctionAtOnce) {
    std::atomic<int> calls = 0;
    const SignalCatcher catcher([](void* context) { ++*static_cast<std::atomic<int>*>(context); }, &calls);
    raise(GetParam());
    EXPECT_EQ(calls, 1);
    raise(GetParam());
    EXPECT_EQ(calls, 2);
}

TEST_P(SignalCatcherTest, letsInterruptedCallsGoOn) {
    const SignalCatcher catcher(nullptr, nullptr);
    EXPECT_NE(actionOf(GetParam()).sa_flags & SA_RESTART, 0);
}

TEST_P(SignalCatcherTest, leavesTheErrorNumberAlone) {
    const SignalCatcher catcher([](void*) { errno = EIO; }, nullptr);
    errno = ENOENT;
    raise(GetParam());
    EXPECT_EQ(errno, ENOENT);
}

TEST_P(SignalCatcherTest, putsBackWhatWasDoneBefore) {
    const auto former = signal(GetParam(), SIG_IGN);
    auto catcher = std::make_unique<SignalCatcher>(nullptr, nullptr);
    EXPECT_NE(actionOf(GetParam()).sa_handler, SIG_IGN);
    catcher.reset();
    EXPECT_EQ(actionOf(GetParam()).sa_handler, SIG_IGN);
    signal(GetParam(), former);
}

TEST_P(SignalCatcherTest, startsAnewWithEachObject) {
    {
        const SignalCatcher first(nullptr, nullptr);
        raise(GetParam());
    }
    const SignalCatcher second(nullptr, nullptr);
    EXPECT_EQ(second.number(), 0);
    EXPECT_FALSE(isReadable(second.fileDescriptor()));
}

INSTANTIATE_TEST_SUITE_P(Signals, SignalCatcherTest, testing::Values(SIGTERM, SIGINT, SIGHUP),
                         [](const auto& name) { return std::string(sigabbrev_np(name.param)); });

}  // namespace

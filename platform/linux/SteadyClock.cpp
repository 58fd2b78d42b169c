// SPDX-License-Identifier: MIT
#include "platform/linux/SteadyClock.h"

#include <algorithm>
#include <cerrno>
#include <ctime>

namespace {

constexpr Clock::Seconds longestSleep = std::chrono::hours(24 * 365);

timespec toTimespec(Clock::Time time) {
    const auto whole = std::chrono::floor<std::chrono::seconds>(time);
    timespec result{};
    result.tv_sec = static_cast<std::time_t>(whole.time_since_epoch().count());
    result.tv_nsec = static_cast<long>(std::chrono::nanoseconds(time - whole).count());
    return result;
}

}  // namespace

Clock::Time SteadyClock::now() const { return std::chrono::steady_clock::now(); }

void SteadyClock::sleepFor(Seconds duration) {
    // Written so that "not a number" returns too.
    if (!(duration > Seconds::zero())) return;
    const auto length = std::chrono::ceil<Time::duration>(std::min(duration, longestSleep));
    const timespec deadline = toTimespec(now() + length);
    // An absolute deadline, so that a signal in between does not lengthen the sleep.
    while (clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &deadline, nullptr) == EINTR) {
    }
}

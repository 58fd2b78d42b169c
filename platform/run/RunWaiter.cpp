// SPDX-License-Identifier: MIT
#include "platform/run/RunWaiter.h"

#include <poll.h>

#include <algorithm>
#include <array>
#include <ctime>

namespace {

/// For those who end a run without waking it (Session::endPlaysWhen).
constexpr std::chrono::milliseconds betweenLooks{100};

/// As the kernel takes it; zero if the moment has passed.
timespec timeTo(Clock::Time until, Clock::Time now) {
    const auto left = std::max(Clock::Time::duration::zero(), until - now);
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(left);
    const auto rest = std::chrono::duration_cast<std::chrono::nanoseconds>(left - seconds);
    return timespec{.tv_sec = static_cast<std::time_t>(seconds.count()),
                    .tv_nsec = static_cast<long>(rest.count())};
}

}  // namespace

Step<> RunWaiter::heedUser() {
    m_watch.drain();
    const bool ends = m_isLost || m_watch.isLost() || m_interrupt.isRaised() || m_watch.isCancelled();
    if (ends) return Halt::cancelled();
    if (m_interrupt.isSuspended() && m_suspended) return m_suspended();
    const auto looked = m_companion.look();
    return looked ? Step<>() : Step<>(looked.error());
}

Step<> RunWaiter::waitUntil(Clock::Time deadline) {
    for (;;) {
        // Before the wait as well: a connection may have read what the descriptor no longer shows.
        if (auto heeded = heedUser(); !heeded) return heeded;
        if (m_clock.now() >= deadline) return {};
        awaitNews(deadline);
    }
}

void RunWaiter::awaitNews(Clock::Time deadline) {
    const Clock::Time look = m_clock.now() + betweenLooks;
    block(std::min({deadline, look, m_watch.cancelDeadline().value_or(deadline)}));
}

void RunWaiter::block(Clock::Time until) {
    std::array<pollfd, 4> entries{};
    entries[0] = {.fd = m_watch.fileDescriptor(), .events = POLLIN, .revents = 0};
    entries[1] = {.fd = m_interrupt.fileDescriptor(), .events = POLLIN, .revents = 0};
    entries[2] = {.fd = m_server, .events = 0, .revents = 0};
    entries[3] = {.fd = m_companion.fileDescriptor(), .events = POLLIN, .revents = 0};
    const timespec left = timeTo(until, m_clock.now());
    ppoll(entries.data(), entries.size(), &left, nullptr);
    m_isLost = (entries[2].revents & (POLLHUP | POLLERR)) != 0;
}

// SPDX-License-Identifier: MIT
#include "platform/run/Wakeups.h"

#include <sys/epoll.h>
#include <sys/eventfd.h>
#include <sys/timerfd.h>
#include <unistd.h>

#include <cstdint>
#include <ctime>

namespace {

/// Zero once it has run down.
std::chrono::nanoseconds timeLeft(const Descriptor& timer) {
    itimerspec spec{};
    timerfd_gettime(timer.number(), &spec);
    return std::chrono::seconds(spec.it_value.tv_sec) + std::chrono::nanoseconds(spec.it_value.tv_nsec);
}

}  // namespace

Wakeups::Wakeups()
    : m_epoll(epoll_create1(EPOLL_CLOEXEC)),
      m_event(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
      m_timer(timerfd_create(CLOCK_MONOTONIC, TFD_CLOEXEC | TFD_NONBLOCK)) {
    watch(m_event.number());
    watch(m_timer.number());
}

void Wakeups::watch(int fileDescriptor) const {
    epoll_event event{};
    event.events = EPOLLIN;
    event.data.fd = fileDescriptor;
    epoll_ctl(m_epoll.number(), EPOLL_CTL_ADD, fileDescriptor, &event);
}

void Wakeups::unwatch(int fileDescriptor) const {
    epoll_ctl(m_epoll.number(), EPOLL_CTL_DEL, fileDescriptor, nullptr);
}

void Wakeups::kick() const {
    // Fails only when the counter is full, which is a kick too.
    static_cast<void>(eventfd_write(m_event.number(), 1));
}

void Wakeups::takeKick() const {
    eventfd_t count = 0;
    static_cast<void>(eventfd_read(m_event.number(), &count));
}

void Wakeups::startTimer(std::chrono::milliseconds duration) {
    if (m_timerRuns && timeLeft(m_timer) <= duration) return;
    itimerspec spec{};
    spec.it_value.tv_sec = static_cast<std::time_t>(duration.count() / 1000);
    spec.it_value.tv_nsec = static_cast<long>(duration.count() % 1000 * 1'000'000);
    m_timerRuns = timerfd_settime(m_timer.number(), 0, &spec, nullptr) == 0;
}

bool Wakeups::takeTimer() {
    std::uint64_t expirations = 0;
    if (read(m_timer.number(), &expirations, sizeof expirations) != sizeof expirations) return false;
    m_timerRuns = false;
    return true;
}

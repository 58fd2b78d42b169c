// SPDX-License-Identifier: MIT
#include "platform/x11/watch/Ticker.h"

#include <sys/timerfd.h>
#include <unistd.h>

#include <cstdint>
#include <ctime>
#include <utility>

namespace x11 {

Ticker::Ticker() : m_timer(timerfd_create(CLOCK_MONOTONIC, TFD_CLOEXEC | TFD_NONBLOCK)) {}

void Ticker::tickEvery(std::chrono::milliseconds period) {
    if (std::exchange(m_period, period) == period) return;
    itimerspec spec{};
    spec.it_value.tv_sec = static_cast<std::time_t>(period.count() / 1000);
    spec.it_value.tv_nsec = static_cast<long>(period.count() % 1000 * 1'000'000);
    spec.it_interval = spec.it_value;
    timerfd_settime(m_timer.number(), 0, &spec, nullptr);
}

bool Ticker::take() const {
    std::uint64_t expirations = 0;
    return read(m_timer.number(), &expirations, sizeof expirations) == sizeof expirations;
}

}  // namespace x11

// SPDX-License-Identifier: MIT
#include "platform/linux/BusLoop.h"

#include <sys/epoll.h>
#include <sys/timerfd.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "platform/linux/BusContext.h"

namespace {

void watch(const Descriptor& files, int fileDescriptor) {
    epoll_event event{};
    event.events = EPOLLIN;
    epoll_ctl(files.number(), EPOLL_CTL_ADD, fileDescriptor, &event);
}

}  // namespace

BusLoop::Context::Context()
    : m_context(g_main_context_new_with_flags(G_MAIN_CONTEXT_FLAGS_OWNERLESS_POLLING)),
      m_timer(timerfd_create(CLOCK_MONOTONIC, TFD_CLOEXEC | TFD_NONBLOCK)),
      m_files(epoll_create1(EPOLL_CLOEXEC)) {
    // Buses are served by a thread of GLib's, which wakes the context; that is the only file of an empty one.
    int priority = 0;
    int timeout = 0;
    GPollFD wakeUp{};
    if (g_main_context_acquire(m_context.get()) == FALSE) std::abort();
    g_main_context_prepare(m_context.get(), &priority);
    if (g_main_context_query(m_context.get(), priority, &timeout, &wakeUp, 1) != 1) std::abort();
    g_main_context_release(m_context.get());
    watch(m_files, wakeUp.fd);
    watch(m_files, m_timer.number());
}

void BusLoop::Context::setTimer(int milliseconds) {
    const bool isWanted = milliseconds >= 0;
    if (!std::exchange(m_isTimerSet, isWanted) && !isWanted) return;
    itimerspec spec{};
    spec.it_value.tv_sec = std::max(0, milliseconds) / 1000;
    // Zero would be no timer at all.
    spec.it_value.tv_nsec = isWanted ? std::max(1, milliseconds % 1000) * 1'000'000L : 0;
    timerfd_settime(m_timer.number(), 0, &spec, nullptr);
}

BusLoop::BusLoop() : m_context(std::make_unique<Context>()) {}
BusLoop::~BusLoop() = default;

int BusLoop::fileDescriptor() const { return m_context->fileDescriptor(); }

namespace {

/// One turn without waiting; whether there may be more to do. A wake-up that was taken in may tell of
/// something that came after the turn had looked, and would be told of no more. `timeout` is the time to the
/// next timer.
bool turn(GMainContext* context, int& timeout) {
    int priority = 0;
    GPollFD wakeUp{};
    g_main_context_prepare(context, &priority);
    const int files = g_main_context_query(context, priority, &timeout, &wakeUp, 1);
    g_poll(&wakeUp, static_cast<guint>(std::min(files, 1)), 0);
    const bool isReady = g_main_context_check(context, priority, &wakeUp, std::min(files, 1)) == TRUE;
    if (isReady) g_main_context_dispatch(context);
    return isReady || wakeUp.revents != 0;
}

}  // namespace

void BusLoop::update() const {
    if (g_main_context_acquire(m_context->get()) == FALSE) return;
    int timeout = 0;
    while (turn(m_context->get(), timeout)) {
    }
    m_context->setTimer(timeout);
    g_main_context_release(m_context->get());
}

void BusLoop::wake() const { g_main_context_wakeup(m_context->get()); }

void BusLoop::observe(std::function<void()> dispatched) { m_observers.push_back(std::move(dispatched)); }

void BusLoop::dispatch() {
    update();
    for (const auto& dispatched : m_observers) dispatched();
}

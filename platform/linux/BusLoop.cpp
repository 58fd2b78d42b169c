// SPDX-License-Identifier: MIT
#include "platform/linux/BusLoop.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "platform/linux/BusContext.h"

BusLoop::Context::Context()
    : m_context(g_main_context_new_with_flags(G_MAIN_CONTEXT_FLAGS_OWNERLESS_POLLING)) {
    // Buses are served by a thread of GLib's, which wakes the context; that is the only file of an empty one.
    int priority = 0;
    int timeout = 0;
    GPollFD wakeUp{};
    if (g_main_context_acquire(m_context.get()) == FALSE) std::abort();
    g_main_context_prepare(m_context.get(), &priority);
    if (g_main_context_query(m_context.get(), priority, &timeout, &wakeUp, 1) != 1) std::abort();
    g_main_context_release(m_context.get());
    m_wakeUp = wakeUp.fd;
}

BusLoop::BusLoop() : m_context(std::make_unique<Context>()) {}
BusLoop::~BusLoop() = default;

int BusLoop::fileDescriptor() const { return m_context->fileDescriptor(); }

namespace {

/// One turn without waiting; whether there may be more to do. A wake-up that was taken in may tell of
/// something that came after the turn had looked, and would be told of no more.
bool turn(GMainContext* context) {
    int priority = 0;
    int timeout = 0;
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
    while (turn(m_context->get())) {
    }
    g_main_context_release(m_context->get());
}

void BusLoop::wake() const { g_main_context_wakeup(m_context->get()); }

void BusLoop::observe(std::function<void()> dispatched) { m_observers.push_back(std::move(dispatched)); }

void BusLoop::dispatch() {
    update();
    for (const auto& dispatched : m_observers) dispatched();
}

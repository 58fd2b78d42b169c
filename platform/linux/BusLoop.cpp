// SPDX-License-Identifier: MIT
#include "platform/linux/BusLoop.h"

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

void BusLoop::update() const {
    while (g_main_context_iteration(m_context->get(), FALSE) == TRUE) {
    }
}

void BusLoop::wake() const { g_main_context_wakeup(m_context->get()); }

void BusLoop::observe(std::function<void()> dispatched) { m_observers.push_back(std::move(dispatched)); }

void BusLoop::dispatch() {
    update();
    for (const auto& dispatched : m_observers) dispatched();
}

// SPDX-License-Identifier: MIT
#include "platform/x11/X11KeyInjector.h"

#include <utility>

#include "platform/x11/RunInterrupt.h"
#include "platform/x11/RunWatch.h"

struct X11KeyInjector::Parts {
    RunInterrupt interrupt;
};

X11KeyInjector::X11KeyInjector(RunWatch& watch, Clock& clock) : X11KeyInjector(watch, clock, Options()) {}

X11KeyInjector::X11KeyInjector(RunWatch& watch, Clock& clock, Options options)
    : m_watch(watch), m_clock(clock), m_options(std::move(options)), m_parts(std::make_unique<Parts>()) {}

X11KeyInjector::~X11KeyInjector() = default;

Result<void> X11KeyInjector::start() { return Error{"No keys can be pressed on this display yet.", {}}; }

Result<std::unique_ptr<InjectionSession>> X11KeyInjector::open(const InjectionPlan&) {
    auto started = start();
    if (!started) return started.error();
    return Error{"No keys can be pressed on this display yet.", {}};
}

void X11KeyInjector::startPlayback() { m_watch.startPlayback(); }

bool X11KeyInjector::isCancelled() {
    m_watch.drain();
    return m_parts->interrupt.isRaised() || m_watch.isCancelled();
}

void X11KeyInjector::interrupt() noexcept { m_parts->interrupt.raise(); }

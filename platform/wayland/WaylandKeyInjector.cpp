// SPDX-License-Identifier: MIT
#include "platform/wayland/WaylandKeyInjector.h"

#include <utility>

#include "platform/Sentence.h"
#include "platform/wayland/WaylandInjectionSession.h"

namespace wayland {

WaylandKeyInjector::WaylandKeyInjector(WaylandConnection& connection, SeatKeymap& seat, Pressing& pressing,
                                       RunWatch& watch, Clock& clock)
    : m_connection(connection), m_seat(seat), m_pressing(pressing), m_watch(watch), m_clock(clock) {}

WaylandKeyInjector::~WaylandKeyInjector() = default;

Result<std::unique_ptr<InjectionSession>> WaylandKeyInjector::open(const InjectionPlan& plan) {
    if (m_session != nullptr)
        return Error{sentence("Keys", "A script is running already."), sentence("Keys", "Wait for its end.")};
    if (const auto started = start(); !started) return started.error();
    const InjectionTools tools{.watch = m_watch,
                               .clock = m_clock,
                               .interrupt = m_interrupt,
                               .connection = m_connection,
                               .seat = m_seat,
                               .pressing = m_pressing};
    auto session = std::make_unique<WaylandInjectionSession>(tools, plan, [this] { m_session = nullptr; });
    m_session = session.get();
    return std::unique_ptr<InjectionSession>(std::move(session));
}

void WaylandKeyInjector::startPlayback() {
    // What has come but was not read belongs to what was before.
    m_watch.drain();
    m_watch.startPlayback();
}

bool WaylandKeyInjector::isCancelled() {
    // A script that does nothing but think for a while; its run takes over again with the next stroke.
    if (m_interrupt.isSuspended()) {
        rest();
        m_interrupt.stopProcess();
    }
    m_watch.drain();
    if (m_session != nullptr) m_session->passTime();
    return m_interrupt.isRaised() || m_watch.isCancelled() || m_watch.isLost();
}

void WaylandKeyInjector::rest() {
    if (m_session != nullptr) m_session->rest();
}

void WaylandKeyInjector::settle() {
    if (m_session != nullptr) m_session->settle();
}

}  // namespace wayland

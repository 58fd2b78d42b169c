// SPDX-License-Identifier: MIT
#include "cli/Playback.h"

#include <signal.h>
#include <unistd.h>

#include <utility>

#include "platform/linux/SteadyClock.h"
#include "platform/sessions/Sessions.h"

Result<std::unique_ptr<Playback>> Playback::make() {
    const auto kind = chooseSession({});
    if (!kind) return kind.error();
    auto clock = std::make_unique<SteadyClock>();
    auto session = kind.value().open(*clock, SessionUse::scripts);
    if (!session) return session.error();
    return std::unique_ptr<Playback>(new Playback(std::move(clock), std::move(session).value()));
}

Playback::Playback(std::unique_ptr<Clock> clock, std::unique_ptr<Session> session)
    : m_clock(std::move(clock)), m_session(std::move(session)) {}

void Playback::interrupt(void* playback) {
    Session* const session = static_cast<Playback*>(playback)->m_interruptible;
    if (session != nullptr) session->interrupt();
}

void Playback::suspend(void* playback) {
    Session* const session = static_cast<Playback*>(playback)->m_interruptible;
    if (session != nullptr) {
        session->suspend();
    } else {
        kill(getpid(), SIGSTOP);
    }
}

int Playback::finish() {
    m_interruptible = nullptr;
    m_session.reset();
    return m_signals.number();
}

void endBySignal(int number) {
    signal(number, SIG_DFL);
    raise(number);
}

// SPDX-License-Identifier: MIT
#include "cli/Playback.h"

#include <signal.h>

#include <array>
#include <utility>

#include "platform/linux/SteadyClock.h"
#include "platform/sessions/Sessions.h"

namespace {

constexpr std::array<int, 3> signalNumbers{SIGINT, SIGTERM, SIGHUP};

/// What the signal handler knows: it is given nothing but the number.
struct Known {
    Session* session = nullptr;
    volatile sig_atomic_t received = 0;
};

/// Made without code, so that there is nothing to wait for inside the handler.
Known& known() {
    static constinit Known instance;
    return instance;
}

void handleSignal(int number) {
    known().received = number;
    if (known().session != nullptr) known().session->interrupt();
}

void setHandlers(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int number : signalNumbers) sigaction(number, &action, nullptr);
}

}  // namespace

Result<std::unique_ptr<Playback>> Playback::make() {
    const auto kind = chooseSession({});
    if (!kind) return kind.error();
    auto clock = std::make_unique<SteadyClock>();
    auto session = kind.value().open(*clock, SessionUse::scripts);
    if (!session) return session.error();
    return std::unique_ptr<Playback>(new Playback(std::move(clock), std::move(session).value()));
}

Playback::Playback(std::unique_ptr<Clock> clock, std::unique_ptr<Session> session)
    : m_clock(std::move(clock)), m_session(std::move(session)) {
    known().session = m_session.get();
    setHandlers(handleSignal);
}

Playback::~Playback() {
    // Nothing runs any more that could be ended.
    known().session = nullptr;
    m_session.reset();
    setHandlers(SIG_DFL);
}

int Playback::signalNumber() { return known().received; }

// SPDX-License-Identifier: MIT
#include "platform/x11/windows/Receivers.h"

#include <unistd.h>

#include <algorithm>
#include <span>
#include <utility>

#include "platform/x11/server/ClientMessage.h"
#include "platform/x11/server/ClientProcess.h"
#include "platform/x11/server/Property.h"
#include "platform/x11/server/WindowTree.h"

namespace x11 {

namespace {

constexpr std::chrono::milliseconds shortestPause{2};
constexpr std::chrono::milliseconds longestPause{50};
/// What is left to a program on another machine, which nobody can ask.
constexpr std::chrono::milliseconds farAway{2000};

/// Between two looks at a program: the longer it has been waited for, the less a little more matters.
Clock::Time::duration pauseAfter(Clock::Time::duration waited) {
    return std::clamp<Clock::Time::duration>(waited / 20, shortestPause, longestPause);
}

}  // namespace

struct Receivers::Server {
    explicit Server(XConnection opened) : connection(std::move(opened)) {}

    XConnection connection;
    WindowTree tree{connection};
    xcb_atom_t protocols = connection.atom("WM_PROTOCOLS");
    xcb_atom_t ping = connection.atom("_NET_WM_PING");
    xcb_atom_t process = connection.atom("_NET_WM_PID");
};

Receivers::Receivers(std::string display, const Clock& clock)
    : m_display(std::move(display)), m_clock(clock) {}
Receivers::~Receivers() = default;

bool Receivers::open() {
    if (m_server) return true;
    auto connection = XConnection::open(m_display);
    if (connection) m_server = std::make_unique<Server>(std::move(connection).value());
    return m_server != nullptr;
}

void Receivers::note() {
    if (open()) m_noted.insert(m_server->tree.receiver());
}

/// The focus may be on a window inside the one that speaks for the program. Keyrill's own windows are left
/// out: they read when the run is over.
std::optional<Receivers::Receiver> Receivers::find(xcb_window_t window) const {
    constexpr std::uint32_t mostProtocols = 64;
    const XConnection& connection = m_server->connection;
    const auto line = m_server->tree.lineOf(window);
    if (line.empty()) return std::nullopt;
    pid_t process = processOf(connection, window);
    for (const xcb_window_t one : line) {
        const pid_t named = namedProcess(one);
        if (named == getpid()) return std::nullopt;
        if (process == 0) process = named;
        const auto protocols =
            Property(connection, one, m_server->protocols).numbers(XCB_ATOM_ATOM, mostProtocols);
        if (std::find(protocols.begin(), protocols.end(), m_server->ping) != protocols.end()) {
            return Receiver{.window = one, .answersPings = true};
        }
    }
    if (process == getpid()) return std::nullopt;
    if (process == 0) return Receiver{.window = window};
    return Receiver{.window = window, .process = ReaderProcess(process)};
}

/// As the program itself says.
pid_t Receivers::namedProcess(xcb_window_t window) const {
    const Property process(m_server->connection, window, m_server->process);
    return static_cast<pid_t>(process.number(XCB_ATOM_CARDINAL));
}

std::vector<Receivers::Receiver> Receivers::all() const {
    std::vector<Receiver> receivers;
    for (const xcb_window_t window : m_noted) {
        auto receiver = find(window);
        if (!receiver) continue;
        const auto isSame = [&](const Receiver& other) { return other.window == receiver->window; };
        if (std::none_of(receivers.begin(), receivers.end(), isSame)) receivers.push_back(*receiver);
    }
    return receivers;
}

/// Answers go to the root window, as if for a window manager: by the standard to whoever selects substructure
/// events there, by Qt to whoever selects structure events.
void Receivers::selectAnswers(bool on) const {
    const std::uint32_t mask =
        on ? XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_STRUCTURE_NOTIFY : XCB_EVENT_MASK_NO_EVENT;
    xcb_change_window_attributes(m_server->connection, m_server->connection.root(), XCB_CW_EVENT_MASK, &mask);
}

void Receivers::ping(const Receiver& receiver) const {
    const ClientMessage message{
        receiver.window, m_server->protocols, {m_server->ping, m_stamp, receiver.window}};
    message.sendTo(m_server->connection, receiver.window);
}

void Receivers::readAnswers(std::vector<Receiver>& receivers) const {
    while (const Event event = m_server->connection.nextEvent()) {
        const auto* message = event.as(clientMessage);
        if (message == nullptr || message->type != m_server->protocols) continue;
        const std::span numbers(message->data.data32);
        if (numbers[0] != m_server->ping || numbers[1] != m_stamp) continue;
        for (Receiver& receiver : receivers) {
            if (receiver.answersPings && receiver.window == numbers[2]) receiver.isDone = true;
        }
    }
}

bool Receivers::hasTakenIn(Receiver& receiver, Clock::Time start) const {
    if (receiver.isDone || !m_server->tree.exists(receiver.window)) return true;
    if (receiver.answersPings) return false;
    const Clock::Time now = m_clock.now();
    return receiver.process ? receiver.process->hasRead(now) : now - start >= farAway;
}

void Receivers::follow(std::vector<Receiver>& receivers, Clock::Time start) const {
    readAnswers(receivers);
    for (Receiver& receiver : receivers) receiver.isDone = hasTakenIn(receiver, start);
}

bool Receivers::areDone(const std::vector<Receiver>& receivers) {
    return std::all_of(receivers.begin(), receivers.end(), [](const Receiver& one) { return one.isDone; });
}

Step<bool> Receivers::await(RunWait& wait, std::chrono::milliseconds longest) {
    note();
    auto receivers = all();
    if (receivers.empty()) return true;
    const Clock::Time start = m_clock.now();
    // A time, as pings carry one; window managers take answers to pings of others for late ones.
    m_stamp = static_cast<std::uint32_t>(
        std::chrono::duration_cast<std::chrono::milliseconds>(start.time_since_epoch()).count());
    selectAnswers(true);
    for (const Receiver& receiver : receivers) {
        if (receiver.answersPings) ping(receiver);
    }
    m_server->connection.roundTrip();
    Step<> waited;
    follow(receivers, start);
    while (waited && !areDone(receivers) && m_clock.now() < start + longest) {
        const Clock::Time now = m_clock.now();
        waited = wait.waitUntil(now + pauseAfter(now - start));
        if (waited) follow(receivers, start);
    }
    selectAnswers(false);
    xcb_flush(m_server->connection);
    if (!waited) return waited.error();
    if (!areDone(receivers)) return false;
    m_noted.clear();
    return true;
}

}  // namespace x11

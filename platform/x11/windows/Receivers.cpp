// SPDX-License-Identifier: MIT
#include "platform/x11/windows/Receivers.h"

#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <span>
#include <string>
#include <utility>

#include "platform/x11/server/ClientMessage.h"
#include "platform/x11/server/Property.h"
#include "platform/x11/server/WindowTree.h"

namespace x11 {

namespace {

constexpr std::chrono::milliseconds betweenLooks{2};
/// So long nothing keeps a program asleep that has something to read: a little more than a busy server takes
/// to answer it.
constexpr std::chrono::milliseconds soundSleep{50};

struct ProcessState {
    bool isAsleep = false;
    long switches = 0;
};

/// proc(5); empty if there is no such process here.
std::optional<ProcessState> stateOf(pid_t process) {
    std::ifstream lines("/proc/" + std::to_string(process) + "/status");
    std::optional<ProcessState> state;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("State:")) state = ProcessState{line.find("S (") != std::string::npos, 0};
        if (!state || line.find("ctxt_switches:") == std::string::npos) continue;
        state->switches += std::strtol(line.c_str() + line.find(':') + 1, nullptr, 10);
    }
    return state;
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
    std::optional<Receiver> byProcess;
    constexpr std::uint32_t mostProtocols = 64;
    const XConnection& connection = m_server->connection;
    for (const xcb_window_t one : m_server->tree.lineOf(window)) {
        const auto id =
            static_cast<pid_t>(Property(connection, one, m_server->process).number(XCB_ATOM_CARDINAL));
        if (id == getpid()) return std::nullopt;
        const auto protocols =
            Property(connection, one, m_server->protocols).numbers(XCB_ATOM_ATOM, mostProtocols);
        if (std::find(protocols.begin(), protocols.end(), m_server->ping) != protocols.end()) {
            return Receiver{.window = one, .answersPings = true};
        }
        if (id != 0 && !byProcess) byProcess = Receiver{.window = one, .process = id};
    }
    return byProcess;
}

std::vector<Receivers::Receiver> Receivers::all() const {
    std::vector<Receiver> receivers;
    for (const xcb_window_t window : m_noted) {
        auto receiver = find(window);
        if (!receiver || m_silent.contains(receiver->window)) continue;
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

void Receivers::watchSleep(Receiver& receiver) const {
    const auto state = stateOf(receiver.process);
    const Clock::Time now = m_clock.now();
    if (!state) {
        receiver.isDone = true;
        return;
    }
    if (!state->isAsleep || state->switches != receiver.switches) receiver.asleepSince.reset();
    receiver.switches = state->switches;
    if (state->isAsleep && !receiver.asleepSince) receiver.asleepSince = now;
    receiver.isDone = receiver.asleepSince && now - *receiver.asleepSince >= soundSleep;
}

void Receivers::follow(std::vector<Receiver>& receivers) const {
    readAnswers(receivers);
    for (Receiver& receiver : receivers) {
        if (!receiver.isDone && !receiver.answersPings) watchSleep(receiver);
    }
}

bool Receivers::areDone(const std::vector<Receiver>& receivers) {
    return std::all_of(receivers.begin(), receivers.end(), [](const Receiver& one) { return one.isDone; });
}

Step<> Receivers::await(RunWait& wait, std::chrono::milliseconds longest) {
    note();
    auto receivers = all();
    m_noted.clear();
    if (receivers.empty()) return {};
    const Clock::Time end = m_clock.now() + longest;
    // A time, as pings carry one; window managers take answers to pings of others for late ones.
    m_stamp = static_cast<std::uint32_t>(
        std::chrono::duration_cast<std::chrono::milliseconds>(m_clock.now().time_since_epoch()).count());
    selectAnswers(true);
    for (const Receiver& receiver : receivers) {
        if (receiver.answersPings) ping(receiver);
    }
    m_server->connection.roundTrip();
    Step<> waited;
    follow(receivers);
    while (waited && !areDone(receivers) && m_clock.now() < end) {
        waited = wait.waitUntil(m_clock.now() + betweenLooks);
        if (waited) follow(receivers);
    }
    selectAnswers(false);
    xcb_flush(m_server->connection);
    for (const Receiver& receiver : receivers) {
        if (!receiver.isDone && waited) m_silent.insert(receiver.window);
    }
    return waited;
}

}  // namespace x11

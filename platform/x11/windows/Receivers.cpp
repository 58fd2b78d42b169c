// SPDX-License-Identifier: MIT
#include "platform/x11/windows/Receivers.h"

#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <string>
#include <utility>

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
    if (open()) m_noted.insert(focused());
}

/// Where the focus follows the pointer, the window below it.
xcb_window_t Receivers::focused() const {
    const XReply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(m_server->connection, xcb_get_input_focus(m_server->connection), nullptr));
    if (!reply || reply->focus == XCB_WINDOW_NONE) return XCB_WINDOW_NONE;
    if (reply->focus != XCB_INPUT_FOCUS_POINTER_ROOT) return reply->focus;
    xcb_window_t window = m_server->connection.root();
    for (;;) {
        const XReply<xcb_query_pointer_reply_t> pointer(xcb_query_pointer_reply(
            m_server->connection, xcb_query_pointer(m_server->connection, window), nullptr));
        if (!pointer || pointer->child == XCB_WINDOW_NONE) return window;
        window = pointer->child;
    }
}

/// The window and those that it lies in, without the root.
std::vector<xcb_window_t> Receivers::lineOf(xcb_window_t window) const {
    std::vector<xcb_window_t> line;
    while (window != XCB_WINDOW_NONE && window != m_server->connection.root()) {
        line.push_back(window);
        const XReply<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(
            m_server->connection, xcb_query_tree(m_server->connection, window), nullptr));
        if (!tree) break;
        window = tree->parent;
    }
    return line;
}

std::vector<std::uint32_t> Receivers::property(xcb_window_t window, xcb_atom_t name, xcb_atom_t type) const {
    constexpr std::uint32_t most = 64;
    const XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        m_server->connection, xcb_get_property(m_server->connection, 0, window, name, type, 0, most),
        nullptr));
    if (!reply || reply->format != 32) return {};
    const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

/// The focus may be on a window inside the one that speaks for the program. Keyrill's own windows are left
/// out: they read when the run is over.
std::optional<Receivers::Receiver> Receivers::find(xcb_window_t window) const {
    std::optional<Receiver> byProcess;
    for (const xcb_window_t one : lineOf(window)) {
        const auto process = property(one, m_server->process, XCB_ATOM_CARDINAL);
        const pid_t id = process.empty() ? 0 : static_cast<pid_t>(process.front());
        if (id == getpid()) return std::nullopt;
        const auto protocols = property(one, m_server->protocols, XCB_ATOM_ATOM);
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
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = receiver.window;
    message.type = m_server->protocols;
    message.data.data32[0] = m_server->ping;
    message.data.data32[1] = m_stamp;
    message.data.data32[2] = receiver.window;
    xcb_send_event(m_server->connection, 0, receiver.window, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&message));
}

void Receivers::readAnswers(std::vector<Receiver>& receivers) {
    while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(m_server->connection)}) {
        if ((event->response_type & 0x7F) != XCB_CLIENT_MESSAGE) continue;
        const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(*event);
        if (message.type != m_server->protocols || message.data.data32[0] != m_server->ping) continue;
        if (message.data.data32[1] != m_stamp) continue;
        for (Receiver& receiver : receivers) {
            if (receiver.answersPings && receiver.window == message.data.data32[2]) receiver.isDone = true;
        }
    }
}

void Receivers::look(Receiver& receiver) const {
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

bool Receivers::areDone(std::vector<Receiver>& receivers) {
    readAnswers(receivers);
    for (Receiver& receiver : receivers) {
        if (!receiver.isDone && !receiver.answersPings) look(receiver);
    }
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
    while (waited && !areDone(receivers) && m_clock.now() < end) {
        waited = wait.waitUntil(m_clock.now() + betweenLooks);
    }
    selectAnswers(false);
    xcb_flush(m_server->connection);
    for (const Receiver& receiver : receivers) {
        if (!receiver.isDone && waited) m_silent.insert(receiver.window);
    }
    return waited;
}

}  // namespace x11

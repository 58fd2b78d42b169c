// SPDX-License-Identifier: MIT
#include "platform/desktops/SwayConnection.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>

#include "platform/Sentence.h"

namespace {

constexpr std::string_view magic = "i3-ipc";
constexpr std::size_t headerSize = magic.size() + 2 * sizeof(std::uint32_t);
constexpr std::size_t longestMessage = 64U << 20U;
constexpr std::uint32_t firstEvent = 0x80000000;

Error unreachable() {
    return {sentence("Session", "sway does not answer at $SWAYSOCK."),
            sentence("Session", "Start the program in the session of sway.")};
}

void append(std::string& message, std::uint32_t number) {
    std::array<char, sizeof number> bytes{};
    std::memcpy(bytes.data(), &number, sizeof number);
    message.append(bytes.data(), bytes.size());
}

std::uint32_t numberAt(const std::string& message, std::size_t place) {
    std::uint32_t number = 0;
    std::memcpy(&number, message.data() + place, sizeof number);
    return number;
}

}  // namespace

Result<SwayConnection> SwayConnection::open(std::chrono::milliseconds patience) {
    const char* const named = std::getenv("SWAYSOCK");
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string_view path = named == nullptr ? std::string_view() : named;
    if (path.empty() || path.size() >= sizeof address.sun_path) return unreachable();
    path.copy(static_cast<char*>(address.sun_path), path.size());
    Descriptor file(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    if (!file || connect(file.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        return unreachable();
    }
    return SwayConnection(std::move(file), patience);
}

Result<Json> SwayConnection::ask(Request request, std::string_view content) {
    const auto type = static_cast<std::uint32_t>(request);
    const auto end = std::chrono::steady_clock::now() + m_patience;
    if (!send(type, content)) return unreachable();
    for (;;) {
        while (auto message = takeMessage()) {
            auto json = Json::parse(message->content);
            if (!json) return unreachable();
            if (message->type == type) return std::move(*json);
            m_events.push_back({message->type, std::move(*json)});
        }
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
        if (left.count() <= 0 || m_isBroken) {
            ++m_overdue;
            return unreachable();
        }
        read(static_cast<int>(left.count()));
    }
}

Result<void> SwayConnection::run(std::string_view command) {
    const auto answer = ask(Request::command, command);
    if (!answer) return answer.error();
    for (const Json& outcome : answer.value().items()) {
        if (!outcome["success"].isTrue())
            return Error{sentence("Session", "sway says: %1").arg(outcome["error"].text()), ""};
    }
    return {};
}

uid_t SwayConnection::user() const {
    ucred peer{};
    socklen_t size = sizeof peer;
    const bool isKnown = getsockopt(m_socket.number(), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0;
    return isKnown ? peer.uid : getuid();
}

std::optional<SwayConnection::Event> SwayConnection::nextEvent() {
    while (read(0)) continue;
    while (auto message = takeMessage()) {
        auto json = Json::parse(message->content);
        if (json && message->type >= firstEvent) m_events.push_back({message->type, std::move(*json)});
    }
    if (m_events.empty()) return std::nullopt;
    Event event = std::move(m_events.front());
    m_events.pop_front();
    return event;
}

bool SwayConnection::send(std::uint32_t type, std::string_view content) {
    std::string message(magic);
    append(message, static_cast<std::uint32_t>(content.size()));
    append(message, type);
    message += content;
    for (std::size_t sent = 0; sent < message.size();) {
        const ssize_t more =
            ::send(m_socket.number(), message.data() + sent, message.size() - sent, MSG_NOSIGNAL);
        if (more < 0 && errno == EINTR) continue;
        if (more <= 0) {
            m_isBroken = true;
            return false;
        }
        sent += static_cast<std::size_t>(more);
    }
    return true;
}

bool SwayConnection::read(int milliseconds) {
    pollfd entry{.fd = m_socket.number(), .events = POLLIN, .revents = 0};
    if (m_isBroken || poll(&entry, 1, milliseconds) <= 0) return false;
    std::array<char, 16384> bytes{};
    const ssize_t size = recv(m_socket.number(), bytes.data(), bytes.size(), MSG_DONTWAIT);
    if (size < 0 && (errno == EINTR || errno == EAGAIN)) return false;
    m_isBroken = size <= 0;
    if (!m_isBroken) m_received.append(bytes.data(), static_cast<std::size_t>(size));
    return !m_isBroken;
}

std::optional<SwayConnection::Message> SwayConnection::takeMessage() {
    auto message = takeAnyMessage();
    for (; message && message->type < firstEvent && m_overdue > 0; message = takeAnyMessage()) --m_overdue;
    return message;
}

std::optional<SwayConnection::Message> SwayConnection::takeAnyMessage() {
    if (m_received.size() < headerSize) return std::nullopt;
    const std::size_t size = numberAt(m_received, magic.size());
    if (!m_received.starts_with(magic) || size > longestMessage) {
        m_isBroken = true;
        m_received.clear();
        return std::nullopt;
    }
    if (m_received.size() < headerSize + size) return std::nullopt;
    Message message{numberAt(m_received, magic.size() + sizeof(std::uint32_t)),
                    m_received.substr(headerSize, size)};
    m_received.erase(0, headerSize + size);
    return message;
}

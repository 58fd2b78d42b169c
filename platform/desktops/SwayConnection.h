// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <chrono>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Descriptor.h"
#include "platform/Result.h"
#include "platform/desktops/Json.h"

/// A connection to sway (sway-ipc(7)), or to what speaks its words.
class SwayConnection {
  public:
    /// The numbers of requests, and of events.
    enum class Request : std::uint32_t {
        command = 0,
        subscribe = 2,
        tree = 4,
        version = 7,
        config = 9,
        inputs = 100,
        seats = 101
    };
    static constexpr std::uint32_t workspaceEvent = 0x80000000;
    static constexpr std::uint32_t windowEvent = 0x80000003;
    static constexpr std::uint32_t bindingEvent = 0x80000005;
    static constexpr std::uint32_t inputEvent = 0x80000015;
    struct Event {
        std::uint32_t type = 0;
        Json content;
    };

    /// At the socket that $SWAYSOCK names, waiting so long for each answer. Fails where there is none.
    static Result<SwayConnection> open(std::chrono::milliseconds patience = std::chrono::seconds(2));

    /// The answer, for which it waits as long as its patience lasts; what else comes meanwhile is kept for
    /// nextEvent(). Fails when the connection is lost, or the answer is no JSON. One that comes too late is
    /// not taken for the next one's.
    Result<Json> ask(Request request, std::string_view content = {});
    /// Runs a command; fails where sway refuses it, with its words.
    Result<void> run(std::string_view command);

    /// Readable when an event may have come.
    int fileDescriptor() const { return m_socket.number(); }
    /// Takes an event that has come, without waiting.
    std::optional<Event> nextEvent();
    /// The user that sway runs as.
    uid_t user() const;
    /// Whether sway has gone.
    bool isBroken() const { return m_isBroken; }

  private:
    SwayConnection(Descriptor socket, std::chrono::milliseconds patience)
        : m_socket(std::move(socket)), m_patience(patience) {}

    struct Message {
        std::uint32_t type = 0;
        std::string content;
    };

    bool send(std::uint32_t type, std::string_view content);
    /// Reads what has come, after at most that many milliseconds; false if nothing has.
    bool read(int milliseconds);
    /// The next one that has come whole and that nobody has given up.
    std::optional<Message> takeMessage();
    std::optional<Message> takeAnyMessage();

    Descriptor m_socket;
    std::chrono::milliseconds m_patience;
    std::string m_received;
    std::deque<Event> m_events;
    /// Answers, in the order of their questions, that are still to come for nobody.
    int m_overdue = 0;
    bool m_isBroken = false;
};

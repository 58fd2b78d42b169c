// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/Descriptor.h"

/// A small program of ours that runs beside this one, and the line to it: packets, on its standard input.
/// What signals this program's group or session does not reach it; it ends when the line does.
class CompanionProcess {
  public:
    /// The program of that name beside the one that runs, or where the installation has it (Installation);
    /// empty where it is neither.
    static std::optional<std::string> find(const std::string& name);

    CompanionProcess() = default;
    ~CompanionProcess() { end(std::chrono::milliseconds(0)); }
    CompanionProcess(const CompanionProcess&) = delete;
    CompanionProcess& operator=(const CompanionProcess&) = delete;

    /// Makes the line, and lays a packet into it for the program to find; run() starts that. False if there
    /// is no line to be had.
    bool open(const void* packet, std::size_t size);
    /// False, and the line is gone, if it cannot be started.
    bool run(const std::vector<std::string>& command);
    /// Whether there is a line.
    bool isOpen() const { return static_cast<bool>(m_socket); }
    int fileDescriptor() const { return m_socket.number(); }

    /// Does not wait for one that reads nothing: false then, and where it has ended.
    bool send(const void* packet, std::size_t size) const;

    /// Ends the line and waits so long for the program, which is killed after that.
    void end(std::chrono::milliseconds patience);
    /// The same, but one that takes longer is left to itself: it still has something to put right, and does
    /// not take for ever.
    void leave(std::chrono::milliseconds patience);

  private:
    std::optional<pid_t> awaitEnd(std::chrono::milliseconds patience);

    Descriptor m_socket;
    Descriptor m_otherEnd;
    pid_t m_process = -1;
    /// Those that are left to themselves and whose end has not been taken note of.
    std::vector<pid_t> m_left;
};

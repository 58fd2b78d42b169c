// SPDX-License-Identifier: MIT
#include "platform/run/CompanionProcess.h"

#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <utility>

#include "platform/Installation.h"

namespace {

bool isExecutable(const std::string& file) { return access(file.c_str(), X_OK) == 0; }

/// The attributes of a process that signals to the program's own group or session do not reach.
class CompanionAttributes {
  public:
    CompanionAttributes() {
        posix_spawnattr_init(&m_attributes);
        sigset_t blocked;
        sigemptyset(&blocked);
        for (const int number : {SIGTERM, SIGINT, SIGHUP}) sigaddset(&blocked, number);
        posix_spawnattr_setsigmask(&m_attributes, &blocked);
        posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK);
    }
    ~CompanionAttributes() { posix_spawnattr_destroy(&m_attributes); }
    CompanionAttributes(const CompanionAttributes&) = delete;
    CompanionAttributes& operator=(const CompanionAttributes&) = delete;
    const posix_spawnattr_t* get() const { return &m_attributes; }

  private:
    posix_spawnattr_t m_attributes{};
};

class CompanionFiles {
  public:
    explicit CompanionFiles(int socket) {
        posix_spawn_file_actions_init(&m_actions);
        posix_spawn_file_actions_adddup2(&m_actions, socket, STDIN_FILENO);
        posix_spawn_file_actions_addopen(&m_actions, STDOUT_FILENO, "/dev/null", 1, 0);
    }
    ~CompanionFiles() { posix_spawn_file_actions_destroy(&m_actions); }
    CompanionFiles(const CompanionFiles&) = delete;
    CompanionFiles& operator=(const CompanionFiles&) = delete;
    const posix_spawn_file_actions_t* get() const { return &m_actions; }

  private:
    posix_spawn_file_actions_t m_actions{};
};

}  // namespace

std::optional<std::string> CompanionProcess::find(const std::string& name) {
    const Installation installation = Installation::ofProcess();
    for (std::string file : {installation.programs(), installation.companions()}) {
        file.append("/").append(name);
        if (isExecutable(file)) return file;
    }
    return std::nullopt;
}

bool CompanionProcess::open(const void* packet, std::size_t size) {
    std::array<int, 2> sockets{};
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, sockets.data()) != 0) return false;
    m_socket.reset(sockets[0]);
    m_otherEnd.reset(sockets[1]);
    return send(packet, size);
}

bool CompanionProcess::run(const std::vector<std::string>& command) {
    std::vector<std::string> words = command;
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    const CompanionAttributes attributes;
    const CompanionFiles files(m_otherEnd.number());
    const int error =
        posix_spawn(&m_process, arguments.front(), files.get(), attributes.get(), arguments.data(), environ);
    m_otherEnd.reset();
    if (error == 0) return true;
    m_process = -1;
    m_socket.reset();
    return false;
}

bool CompanionProcess::send(const void* packet, std::size_t size) const {
    return ::send(m_socket.number(), packet, size, MSG_NOSIGNAL | MSG_DONTWAIT) == static_cast<ssize_t>(size);
}

void CompanionProcess::end(std::chrono::milliseconds patience) {
    const auto process = awaitEnd(patience);
    if (!process) return;
    kill(*process, SIGKILL);
    waitpid(*process, nullptr, 0);
}

void CompanionProcess::leave(std::chrono::milliseconds patience) {
    std::erase_if(m_left, [](pid_t process) { return waitpid(process, nullptr, WNOHANG) != 0; });
    if (const auto process = awaitEnd(patience)) m_left.push_back(*process);
}

/// The process if it has not ended by then.
std::optional<pid_t> CompanionProcess::awaitEnd(std::chrono::milliseconds patience) {
    m_socket.reset();
    m_otherEnd.reset();
    if (m_process < 0) return std::nullopt;
    const pid_t process = std::exchange(m_process, -1);
    for (auto waited = patience.zero(); waited < patience; ++waited) {
        if (waitpid(process, nullptr, WNOHANG) != 0) return std::nullopt;
        usleep(1000);
    }
    return process;
}

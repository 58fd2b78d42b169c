// SPDX-License-Identifier: MIT
#include "platform/x11/guard/GuardLink.h"

#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <utility>

namespace x11 {

namespace {

constexpr const char* guardName = "keyrill-guard";
constexpr const char* installedFolder = KEYRILL_GUARD_FOLDER;
/// What cleaning up takes, and more.
constexpr std::chrono::milliseconds timeToEnd{200};

bool isExecutable(const std::string& file) { return access(file.c_str(), X_OK) == 0; }

/// The attributes of a process that signals to the program's own group or session do not reach.
class GuardAttributes {
  public:
    GuardAttributes() {
        posix_spawnattr_init(&m_attributes);
        sigset_t blocked;
        sigemptyset(&blocked);
        for (const int number : {SIGTERM, SIGINT, SIGHUP}) sigaddset(&blocked, number);
        posix_spawnattr_setsigmask(&m_attributes, &blocked);
        posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK);
    }
    ~GuardAttributes() { posix_spawnattr_destroy(&m_attributes); }
    GuardAttributes(const GuardAttributes&) = delete;
    GuardAttributes& operator=(const GuardAttributes&) = delete;
    const posix_spawnattr_t* get() const { return &m_attributes; }

  private:
    posix_spawnattr_t m_attributes{};
};

class GuardFiles {
  public:
    explicit GuardFiles(int socket) {
        posix_spawn_file_actions_init(&m_actions);
        posix_spawn_file_actions_adddup2(&m_actions, socket, STDIN_FILENO);
        posix_spawn_file_actions_addopen(&m_actions, STDOUT_FILENO, "/dev/null", 1, 0);
    }
    ~GuardFiles() { posix_spawn_file_actions_destroy(&m_actions); }
    GuardFiles(const GuardFiles&) = delete;
    GuardFiles& operator=(const GuardFiles&) = delete;
    const posix_spawn_file_actions_t* get() const { return &m_actions; }

  private:
    posix_spawn_file_actions_t m_actions{};
};

}  // namespace

GuardLink::GuardLink(std::string program, std::string display, std::string markFile)
    : m_program(std::move(program)), m_display(std::move(display)), m_markFile(std::move(markFile)) {}

GuardLink::~GuardLink() { end(timeToEnd); }

Error GuardLink::cannotStart() const {
    const std::string program = m_program.empty() ? guardName : m_program;
    return Error{
        "The guard program \"" + program + "\", which releases keys after a crash, could not be started.",
        "Install the program again; nothing is played without its guard."};
}

Result<void> GuardLink::tell(const GuardMessage& message) {
    if (m_socket && m_told == message) return {};
    const bool isFirst = !m_socket;
    m_told = message;
    if (isFirst) return start();
    return send(message) ? Result<void>() : replace();
}

/// Does not wait for one that reads nothing.
bool GuardLink::send(const GuardMessage& message) {
    ++m_expected;
    return ::send(m_socket.number(), &message, sizeof message, MSG_NOSIGNAL | MSG_DONTWAIT) ==
           static_cast<ssize_t>(sizeof message);
}

Result<void> GuardLink::look() {
    if (!m_socket) return {};
    for (;;) {
        char answer = 0;
        const ssize_t size = recv(m_socket.number(), &answer, 1, MSG_DONTWAIT);
        if (size == 1 && answer == guardReady) {
            ++m_heard;
        } else if (size < 0 && (errno == EAGAIN || errno == EINTR)) {
            return {};
        } else {
            break;
        }
    }
    // One that never got as far would not get there the next time either.
    if (m_heard != 0) return replace();
    end(timeToEnd);
    return cannotStart();
}

Result<void> GuardLink::replace() {
    end(std::chrono::milliseconds(0));
    return start();
}

Result<std::string> GuardLink::find() const {
    if (!m_program.empty()) return m_program;
    std::error_code failed;
    const auto self = std::filesystem::read_symlink("/proc/self/exe", failed);
    const std::string beside = (self.parent_path() / guardName).string();
    if (!failed && isExecutable(beside)) return beside;
    const std::string installed = std::string(installedFolder) + "/" + guardName;
    if (isExecutable(installed)) return installed;
    return cannotStart();
}

/// What it is to know lies in its socket before it runs.
Result<void> GuardLink::start() {
    auto program = find();
    if (!program) return program.error();
    std::array<int, 2> sockets{};
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, sockets.data()) != 0) return cannotStart();
    m_socket.reset(sockets[0]);
    Descriptor otherEnd(sockets[1]);
    m_heard = 0;
    m_expected = 1;
    const bool isTold = send(m_told.value_or(GuardMessage{}));
    const GuardAttributes attributes;
    const GuardFiles files(otherEnd.number());
    std::array<char*, 4> arguments = {program.value().data(), m_display.data(), m_markFile.data(), nullptr};
    const int error = posix_spawn(&m_process, program.value().c_str(), files.get(), attributes.get(),
                                  arguments.data(), environ);
    otherEnd.reset();
    if (error != 0) m_process = -1;
    if (isTold && error == 0) return {};
    end(std::chrono::milliseconds(0));
    return cannotStart();
}

void GuardLink::end(std::chrono::milliseconds patience) {
    m_socket.reset();
    if (m_process < 0) return;
    const pid_t process = std::exchange(m_process, -1);
    for (auto waited = patience.zero(); waited < patience; ++waited) {
        if (waitpid(process, nullptr, WNOHANG) != 0) return;
        usleep(1000);
    }
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
}

}  // namespace x11

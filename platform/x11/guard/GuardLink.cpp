// SPDX-License-Identifier: MIT
#include "platform/x11/guard/GuardLink.h"

#include <poll.h>
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
constexpr int readyMilliseconds = 3000;

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

Error cannotStart(const std::string& program) {
    return Error{
        "The guard program \"" + program + "\", which releases keys after a crash, could not be started.",
        "Install the program again; nothing is played without its guard."};
}

}  // namespace

GuardLink::GuardLink(std::string program, std::string display, std::string markFile)
    : m_program(std::move(program)), m_display(std::move(display)), m_markFile(std::move(markFile)) {}

GuardLink::~GuardLink() { end(); }

Result<void> GuardLink::tell(const GuardMessage& message) {
    if (m_socket && m_told == message) return {};
    if (!m_socket || !send(message)) {
        end();
        const auto started = start();
        if (!started) return started.error();
        if (!send(message)) return cannotStart(m_program);
    }
    m_told = message;
    return {};
}

bool GuardLink::send(const GuardMessage& message) const {
    return ::send(m_socket.number(), &message, sizeof message, MSG_NOSIGNAL) ==
           static_cast<ssize_t>(sizeof message);
}

Result<std::string> GuardLink::find() const {
    if (!m_program.empty()) return m_program;
    std::error_code failed;
    const auto self = std::filesystem::read_symlink("/proc/self/exe", failed);
    const std::string beside = (self.parent_path() / guardName).string();
    if (!failed && isExecutable(beside)) return beside;
    const std::string installed = std::string(installedFolder) + "/" + guardName;
    if (isExecutable(installed)) return installed;
    return cannotStart(guardName);
}

Result<void> GuardLink::start() {
    auto program = find();
    if (!program) return program.error();
    std::array<int, 2> sockets{};
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, sockets.data()) != 0) {
        return cannotStart(program.value());
    }
    m_socket.reset(sockets[0]);
    Descriptor otherEnd(sockets[1]);
    const GuardAttributes attributes;
    const GuardFiles files(otherEnd.number());
    std::array<char*, 4> arguments = {program.value().data(), m_display.data(), m_markFile.data(), nullptr};
    const int error = posix_spawn(&m_process, program.value().c_str(), files.get(), attributes.get(),
                                  arguments.data(), environ);
    otherEnd.reset();
    if (error != 0) m_process = -1;
    if (error == 0 && awaitReady()) return {};
    end();
    return cannotStart(program.value());
}

bool GuardLink::awaitReady() const {
    pollfd entry{.fd = m_socket.number(), .events = POLLIN, .revents = 0};
    int ready = 0;
    do ready = poll(&entry, 1, readyMilliseconds);
    while (ready < 0 && errno == EINTR);
    char answer = 0;
    return ready == 1 && recv(m_socket.number(), &answer, 1, 0) == 1 && answer == guardReady;
}

void GuardLink::end() {
    m_told.reset();
    m_socket.reset();
    if (m_process < 0) return;
    // It goes by itself, in the time that cleaning up takes if that is needed.
    const pid_t process = std::exchange(m_process, -1);
    for (int milliseconds = 0; milliseconds < 200; ++milliseconds) {
        if (waitpid(process, nullptr, WNOHANG) != 0) return;
        usleep(1000);
    }
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
}

}  // namespace x11

// SPDX-License-Identifier: MIT
#include "platform/wayland/WaylandClipboard.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/eventfd.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <thread>

#include "platform/Descriptor.h"
#include "platform/Sentence.h"
#include "platform/wayland/ClipboardDevice.h"

namespace wayland {

namespace {

constexpr std::chrono::seconds patience{1};
constexpr int betweenLooks = 10;  // milliseconds
constexpr std::size_t longestText = 64U << 20U;
constexpr int longestStart = 2000;
/// Where a process has its first file beside the standard ones.
constexpr int firstOwnFile = 3;

/// A reader that goes away in the middle of a text is no reason to end.
void blockSignals() {
    sigset_t all{};
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, nullptr);
}

/// Nothing of the parent's stays open but that file, which becomes the first.
void letGoOfTheParent(int file) {
    setsid();
    [[maybe_unused]] const int moved = chdir("/");
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) signal(number, SIG_DFL);
    signal(SIGPIPE, SIG_IGN);
    const int nowhere = open("/dev/null", O_RDWR);
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(nowhere, standard);
    dup2(file, firstOwnFile);
    close_range(firstOwnFile + 1, ~0U, 0);
}

/// The life of the process in the background.
void keep(const std::string& text) {
    const auto device = ClipboardDevice::open();
    if (!device || !device.value()->own(text)) return;
    close(firstOwnFile);
    device.value()->serve(-1);
}

}  // namespace

/// What was set last, for as long as it is there.
class WaylandClipboard::Owner {
  public:
    explicit Owner(std::unique_ptr<ClipboardDevice> device)
        : m_device(std::move(device)), m_thread([this] { serve(); }) {}
    ~Owner() {
        eventfd_write(m_wakeup.number(), 1);
        m_thread.join();
    }
    Owner(const Owner&) = delete;
    Owner& operator=(const Owner&) = delete;

    bool isOwner() const { return m_isOwner; }
    const std::string& text() const { return m_device->text(); }

  private:
    void serve() {
        blockSignals();
        m_device->serve(m_wakeup.number());
        m_isOwner = m_device->isOwner();
    }

    std::unique_ptr<ClipboardDevice> m_device;
    Descriptor m_wakeup{eventfd(0, EFD_CLOEXEC)};
    std::atomic<bool> m_isOwner = true;
    std::thread m_thread;
};

WaylandClipboard::WaylandClipboard() = default;
WaylandClipboard::~WaylandClipboard() = default;

Result<void> WaylandClipboard::set(std::string_view text) {
    auto device = ClipboardDevice::open();
    if (!device) return device.error();
    if (auto owned = device.value()->own(std::string(text)); !owned) return owned;
    m_owner = std::make_unique<Owner>(std::move(device).value());
    return {};
}

Result<std::string> WaylandClipboard::text() {
    const auto device = ClipboardDevice::open();
    if (!device) return device.error();
    const auto reader = device.value()->receive();
    if (!reader) return reader.error();
    std::string text;
    auto end = std::chrono::steady_clock::now() + patience;
    while (reader.value() && std::chrono::steady_clock::now() < end && !(m_isStopped && m_isStopped())) {
        pollfd entry{.fd = reader.value().number(), .events = POLLIN, .revents = 0};
        if (poll(&entry, 1, betweenLooks) <= 0) continue;
        std::array<char, 65536> bytes{};
        const ssize_t size = read(reader.value().number(), bytes.data(), bytes.size());
        if (size < 0 && errno == EINTR) continue;
        if (size < 0) break;
        if (size == 0) return text;
        text.append(bytes.data(), static_cast<std::size_t>(size));
        if (text.size() > longestText)
            return Error{sentence("Clipboard", "The text in the clipboard is too long."), ""};
        end = std::chrono::steady_clock::now() + patience;
    }
    // Whoever falls silent in the middle has given no text.
    return std::string();
}

void WaylandClipboard::leave() {
    if (!m_owner || !m_owner->isOwner()) return;
    const std::string text = m_owner->text();
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) return;
    const Descriptor ours(ends[0]);
    Descriptor theirs(ends[1]);
    const pid_t child = fork();
    if (child == 0) {
        // A process between ends at once, so that nobody has to ask for the status of the one that stays.
        if (fork() == 0) {
            letGoOfTheParent(theirs.number());
            keep(text);
        }
        _exit(EXIT_SUCCESS);
    }
    theirs.reset();
    // It closes its end when it has the clipboard, or when it has ended.
    pollfd entry{.fd = ours.number(), .events = POLLIN, .revents = 0};
    if (child > 0) poll(&entry, 1, longestStart);
    while (child > 0 && waitpid(child, nullptr, 0) < 0 && errno == EINTR) continue;
}

}  // namespace wayland

// SPDX-License-Identifier: MIT
#include "platform/desktops/PortalLink.h"

#include <poll.h>
#include <sys/socket.h>

#include <cerrno>
#include <filesystem>
#include <utility>

#include "platform/Sentence.h"
#include "platform/desktops/portal/PortalNames.h"
#include "platform/linux/ConfigFolders.h"

namespace {

constexpr const char* programName = "keyrill-portal";
/// What it takes to release keys where the desktop is not slow.
constexpr std::chrono::milliseconds timeToEnd{2000};
/// For a desktop that is busy.
constexpr std::chrono::milliseconds patienceWithKeys{5000};
constexpr std::chrono::milliseconds betweenLooks{10};

Error errorFor(PortalAnswer answer) {
    switch (answer) {
        case PortalAnswer::missing:
            return {sentence("Keys", "This desktop lets no program press keys: no portal for it answers."),
                    sentence("Keys",
                             "Install xdg-desktop-portal and the part of it that belongs to your desktop.")};
        case PortalAnswer::refused:
            return {sentence("Keys", "The desktop was not allowed to let Keyrill press keys."),
                    sentence("Keys", "Play again, and agree when you are asked.")};
        case PortalAnswer::silent:
            return {sentence("Keys", "The desktop has not answered whether Keyrill may press keys."),
                    sentence("Keys", "Play again; if nothing asks you, log in again.")};
        case PortalAnswer::opened:
        case PortalAnswer::synced:
        case PortalAnswer::lost:
            break;
    }
    return {sentence("Keys", "The desktop no longer lets Keyrill press keys."),
            sentence("Keys", "Play again; it may ask for your permission.")};
}

Error cannotStart() {
    return {sentence("Programs",
                     "The program \"%1\", which presses keys by the desktop's portal, could not be started.")
                .arg(programName),
            sentence("Programs", "Install the program again.")};
}

}  // namespace

bool PortalLink::isThere(const SessionBus& bus) {
    const auto answer =
        bus.ask({portalnames::service, portalnames::object, portalnames::properties, "Get"},
                g_variant_new("(ss)", "org.freedesktop.portal.RemoteDesktop", "AvailableDeviceTypes"), "(v)",
                SessionBus::Starts::yes);
    if (!answer) return false;
    GVariant* value = nullptr;
    g_variant_get(answer.value().get(), "(v)", &value);
    const GVariantPointer types(value);
    return g_variant_is_of_type(value, G_VARIANT_TYPE_UINT32) == TRUE &&
           portalnames::mayHaveKeyboards(g_variant_get_uint32(value));
}

std::string PortalLink::tokenFileOfProcess() {
    std::string state = environmentOfProcess()("XDG_STATE_HOME");
    if (!state.starts_with('/')) state = homeOfProcess() + "/.local/state";
    const std::filesystem::path folder = std::filesystem::path(state) / "keyrill";
    std::error_code failed;
    std::filesystem::create_directories(folder, failed);
    std::filesystem::permissions(folder, std::filesystem::perms::owner_all, failed);
    // Without a folder the desktop asks each time.
    return failed ? std::string() : (folder / "portal").string();
}

PortalLink::PortalLink(Options options, Clock& clock) : m_options(std::move(options)), m_clock(clock) {}

PortalLink::~PortalLink() { m_process.leave(timeToEnd); }

Result<void> PortalLink::begin() {
    const PortalMessage open{.kind = PortalMessage::Kind::open};
    m_isOpened = false;
    m_failure.reset();
    m_awaited = 0;
    m_hasEnded = false;
    m_isReused = false;
    if (m_process.isOpen()) {
        read();
        if (!m_failure && say(open)) {
            m_isReused = true;
            return {};
        }
        m_failure.reset();
        m_process.leave(timeToEnd);
    }
    const auto program =
        m_options.program.empty() ? CompanionProcess::find(programName) : std::optional(m_options.program);
    if (!program || !m_process.open(&open, sizeof open) ||
        !m_process.run({*program, m_options.tokenFile, std::to_string(m_options.patience.count()),
                        std::to_string(m_options.rest.count())})) {
        return cannotStart();
    }
    return {};
}

Step<> PortalLink::open(RunWait& wait) {
    m_isNeeded = true;
    if (const auto begun = begin(); !begun) return begun.error();
    while (!m_isOpened) {
        read();
        // One that has rested may have ended just before it was told.
        if (m_hasEnded && m_isReused) {
            m_process.leave(timeToEnd);
            if (const auto begun = begin(); !begun) return begun.error();
        }
        if (const auto looked = look(); !looked) return looked.error();
        if (m_isOpened) break;
        if (auto waited = wait.waitUntil(m_clock.now() + betweenLooks); !waited) {
            withdraw();
            return waited;
        }
    }
    return {};
}

/// With the program its question goes: a yes that comes later would be for nobody, and kept for ever.
void PortalLink::withdraw() {
    m_isNeeded = false;
    m_process.leave(timeToEnd);
}

void PortalLink::rest() {
    m_isNeeded = false;
    if (m_process.isOpen()) say({.kind = PortalMessage::Kind::rest});
}

void PortalLink::key(std::uint16_t keycode, bool press) {
    say({.kind = press ? PortalMessage::Kind::press : PortalMessage::Kind::release, .keycode = keycode});
}

/// Waits while the line is full.
bool PortalLink::say(const PortalMessage& message) {
    const Clock::Time end = m_clock.now() + patienceWithKeys;
    while (!m_failure && !m_process.send(&message, sizeof message)) {
        const bool isFull = errno == EAGAIN || errno == EWOULDBLOCK;
        if (!isFull || m_clock.now() >= end) {
            m_failure = PortalAnswer::lost;
            break;
        }
        pollfd entry{.fd = m_process.fileDescriptor(), .events = POLLOUT, .revents = 0};
        poll(&entry, 1, static_cast<int>(betweenLooks.count()));
    }
    return !m_failure;
}

Result<void> PortalLink::synchronise() {
    if (!m_process.isOpen()) return {};
    if (say({.kind = PortalMessage::Kind::sync})) ++m_awaited;
    const Clock::Time end = m_clock.now() + patienceWithKeys;
    for (read(); !m_failure && m_awaited > 0 && m_clock.now() < end; read()) {
        pollfd entry{.fd = m_process.fileDescriptor(), .events = POLLIN, .revents = 0};
        poll(&entry, 1, static_cast<int>(patienceWithKeys.count()));
    }
    if (m_awaited > 0 && !m_failure) m_failure = PortalAnswer::silent;
    return look();
}

Result<void> PortalLink::look() {
    if (m_process.isOpen()) read();
    if (!m_failure) return {};
    const PortalAnswer failure = *m_failure;
    m_process.leave(timeToEnd);
    if (!m_isNeeded) {
        m_failure.reset();
        return {};
    }
    return errorFor(failure);
}

/// Its end without a word is a loss too.
void PortalLink::read() {
    while (!m_failure) {
        PortalAnswer answer{};
        const ssize_t size = recv(m_process.fileDescriptor(), &answer, sizeof answer, MSG_DONTWAIT);
        if (size < 0 && (errno == EAGAIN || errno == EINTR)) return;
        if (size != sizeof answer) {
            m_hasEnded = true;
            m_failure = PortalAnswer::lost;
        } else if (answer == PortalAnswer::opened) {
            m_isOpened = true;
        } else if (answer == PortalAnswer::synced) {
            --m_awaited;
        } else {
            m_failure = answer;
        }
    }
}

// SPDX-License-Identifier: MIT
#include "platform/x11/guard/GuardLink.h"

#include <sys/socket.h>

#include <cerrno>
#include <utility>

#include "platform/Sentence.h"

namespace x11 {

namespace {

constexpr const char* guardName = "keyrill-guard";
/// What cleaning up takes, and more.
constexpr std::chrono::milliseconds timeToEnd{200};

}  // namespace

GuardLink::GuardLink(std::string program, std::string display, std::string markFile)
    : m_program(std::move(program)), m_display(std::move(display)), m_markFile(std::move(markFile)) {}

GuardLink::~GuardLink() { m_process.end(timeToEnd); }

Error GuardLink::cannotStart() const {
    const std::string program = m_program.empty() ? guardName : m_program;
    return Error{
        sentence("Programs",
                 "The guard program \"%1\", which releases keys after a crash, could not be started.")
            .arg(program),
        sentence("Programs", "Install the program again; nothing is played without its guard.")};
}

Result<void> GuardLink::tell(const GuardMessage& message) {
    if (m_process.isOpen() && m_told == message) return {};
    const bool isFirst = !m_process.isOpen();
    m_told = message;
    if (isFirst) return start();
    return send(message) ? Result<void>() : replace();
}

/// Does not wait for one that reads nothing.
bool GuardLink::send(const GuardMessage& message) {
    ++m_expected;
    return m_process.send(&message, sizeof message);
}

Result<void> GuardLink::look() {
    if (!m_process.isOpen()) return {};
    for (;;) {
        char answer = 0;
        const ssize_t size = recv(m_process.fileDescriptor(), &answer, 1, MSG_DONTWAIT);
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
    m_process.end(timeToEnd);
    return cannotStart();
}

Result<void> GuardLink::replace() {
    m_process.end(std::chrono::milliseconds(0));
    return start();
}

Result<std::string> GuardLink::find() const {
    if (!m_program.empty()) return m_program;
    const auto found = CompanionProcess::find(guardName);
    return found ? Result<std::string>(*found) : cannotStart();
}

/// What it is to know lies in its line before it runs.
Result<void> GuardLink::start() {
    const auto program = find();
    if (!program) return program.error();
    const GuardMessage message = m_told.value_or(GuardMessage{});
    m_heard = 0;
    m_expected = 2;
    const bool isTold = m_process.open(&message, sizeof message);
    if (isTold && m_process.run({program.value(), m_display, m_markFile})) return {};
    m_process.end(std::chrono::milliseconds(0));
    return cannotStart();
}

}  // namespace x11

// SPDX-License-Identifier: MIT
#include "app/program/TerminationSignals.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <cerrno>

namespace {

constexpr std::array<int, 3> signalNumbers{SIGTERM, SIGINT, SIGHUP};

// A signal handler sees nothing but globals.
// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables)
TerminationSignals::AtOnce atOnceFunction = nullptr;
void* atOnceContext = nullptr;
int writeEnd = -1;
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

void handleSignal(int /*number*/) {
    const int savedError = errno;
    if (atOnceFunction != nullptr) atOnceFunction(atOnceContext);
    // A pipe that is full will wake the loop as well.
    [[maybe_unused]] const ssize_t written = write(writeEnd, "x", 1);
    errno = savedError;
}

void setHandlers(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int number : signalNumbers) sigaction(number, &action, nullptr);
}

}  // namespace

TerminationSignals::TerminationSignals(AtOnce atOnce, void* context) {
    if (pipe2(m_pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) qFatal("no pipe can be made");
    auto* notifier = new QSocketNotifier(m_pipe[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        notifier->setEnabled(false);
        emit received();
    });
    atOnceFunction = atOnce;
    atOnceContext = context;
    writeEnd = m_pipe[1];
    setHandlers(handleSignal);
}

TerminationSignals::~TerminationSignals() {
    setHandlers(SIG_DFL);
    for (const int end : m_pipe) close(end);
}

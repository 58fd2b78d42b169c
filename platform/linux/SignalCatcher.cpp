// SPDX-License-Identifier: MIT
#include "platform/linux/SignalCatcher.h"

#include <signal.h>
#include <sys/eventfd.h>

#include <array>
#include <cerrno>
#include <cstddef>

namespace {

constexpr std::array<int, 3> signalNumbers{SIGTERM, SIGINT, SIGHUP};

/// What the signal handler knows: it is given nothing but the number.
struct Known {
    SignalCatcher::AtOnce atOnce = nullptr;
    SignalCatcher::AtOnce suspend = nullptr;
    void* context = nullptr;
    int wakeup = -1;
    volatile sig_atomic_t received = 0;
    /// What was done with each of the signals before.
    std::array<struct sigaction, signalNumbers.size()> former{};
    struct sigaction formerStop {};
};

/// Made without code, so that there is nothing to wait for inside the handler.
Known& known() {
    static constinit Known instance;
    return instance;
}

void handleSignal(int number) {
    const int savedError = errno;
    known().received = number;
    if (known().atOnce != nullptr) known().atOnce(known().context);
    // A full counter is readable as well, so that a failed write needs no answer.
    [[maybe_unused]] const int ignored = eventfd_write(known().wakeup, 1);
    errno = savedError;
}

void handleStop(int /*number*/) {
    const int savedError = errno;
    known().suspend(known().context);
    errno = savedError;
}

}  // namespace

SignalCatcher::SignalCatcher(AtOnce atOnce, AtOnce suspend, void* context)
    : m_wakeup(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    known().atOnce = atOnce;
    known().suspend = suspend;
    known().context = context;
    known().wakeup = m_wakeup.number();
    known().received = 0;
    struct sigaction action {};
    action.sa_handler = handleSignal;
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < signalNumbers.size(); ++i) {
        sigaction(signalNumbers.at(i), &action, &known().former.at(i));
    }
    action.sa_handler = handleStop;
    if (suspend != nullptr) sigaction(SIGTSTP, &action, &known().formerStop);
}

SignalCatcher::~SignalCatcher() {
    if (known().suspend != nullptr) sigaction(SIGTSTP, &known().formerStop, nullptr);
    for (std::size_t i = 0; i < signalNumbers.size(); ++i) {
        sigaction(signalNumbers.at(i), &known().former.at(i), nullptr);
    }
}

int SignalCatcher::number() const { return known().received; }

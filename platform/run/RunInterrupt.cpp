// SPDX-License-Identifier: MIT
#include "platform/run/RunInterrupt.h"

#include <signal.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <cerrno>

RunInterrupt::RunInterrupt() : m_descriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

void RunInterrupt::suspend() noexcept {
    const int savedError = errno;
    if (m_holds.load()) {
        m_suspended.store(true);
        [[maybe_unused]] const int ignored = eventfd_write(m_descriptor.number(), 1);
    } else {
        kill(getpid(), SIGSTOP);
    }
    errno = savedError;
}

void RunInterrupt::stopProcess() noexcept {
    m_suspended.store(false);
    eventfd_t count = 0;
    if (!m_raised.load()) static_cast<void>(eventfd_read(m_descriptor.number(), &count));
    // A signal that ends the process may have come between the two.
    if (m_raised.load()) raise();
    kill(getpid(), SIGSTOP);
}

void RunInterrupt::raise() noexcept {
    const int savedError = errno;
    m_raised.store(true);
    // A full counter is readable as well, so that a failed write needs no answer.
    [[maybe_unused]] const int ignored = eventfd_write(m_descriptor.number(), 1);
    errno = savedError;
}

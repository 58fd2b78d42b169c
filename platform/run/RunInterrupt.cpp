// SPDX-License-Identifier: MIT
#include "platform/run/RunInterrupt.h"

#include <sys/eventfd.h>

#include <cerrno>

RunInterrupt::RunInterrupt() : m_descriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

void RunInterrupt::raise() noexcept {
    const int savedError = errno;
    m_raised.store(true);
    // A full counter is readable as well, so that a failed write needs no answer.
    [[maybe_unused]] const int ignored = eventfd_write(m_descriptor.number(), 1);
    errno = savedError;
}

// SPDX-License-Identifier: MIT
#include "platform/Descriptor.h"

#include <unistd.h>

#include <cerrno>

void Descriptor::reset(int number) {
    const int former = std::exchange(m_number, number < 0 ? none : number);
    if (former == none) return;
    const int savedError = errno;
    // Not tried again after a failure: the number is free by then, and may already be somebody else's.
    close(former);
    errno = savedError;
}

int writeAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t part = write(file, bytes.data(), bytes.size());
        if (part < 0 && errno != EINTR) return errno;
        if (part > 0) bytes.remove_prefix(static_cast<std::size_t>(part));
    }
    return 0;
}

// SPDX-License-Identifier: MIT
#pragma once

#include <poll.h>

/// Waits until the descriptor is readable; false after ten seconds.
inline bool isWoken(int fileDescriptor) {
    constexpr int patience = 10'000;
    pollfd entry{.fd = fileDescriptor, .events = POLLIN, .revents = 0};
    return poll(&entry, 1, patience) > 0;
}

// SPDX-License-Identifier: MIT
#pragma once

#include <poll.h>

#include "linux/desktop/PrivateBus.h"
#include "platform/linux/BusLoop.h"

/// Turns the loop, as the program's own would, until the condition holds; false after 10 seconds.
inline bool turnUntil(BusLoop& loop, const std::function<bool()>& condition) {
    return eventually([&] {
        pollfd readable{.fd = loop.fileDescriptor(), .events = POLLIN, .revents = 0};
        if (poll(&readable, 1, 0) == 1) loop.dispatch();
        return condition();
    });
}

// SPDX-License-Identifier: MIT
#include "app/macros/WriteAll.h"

#include <unistd.h>

#include <cerrno>

int writeAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t part = write(file, bytes.data(), bytes.size());
        if (part < 0 && errno != EINTR) return errno;
        if (part > 0) bytes.remove_prefix(static_cast<std::size_t>(part));
    }
    return 0;
}

// SPDX-License-Identifier: MIT
#include "platform/linux/StandardStreams.h"

#include <fcntl.h>
#include <unistd.h>

// The lowest number that is free is the one that is given.
void occupyStandardStreams() {
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        if (fcntl(stream, F_GETFD) < 0) open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
}

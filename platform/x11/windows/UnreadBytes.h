// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

namespace x11 {

/// Whether bytes of an X server lie in a socket of that process and wait to be read, as the kernel tells it
/// (sock_diag(7)). False where it does not: of other users' processes, and of connections over a network.
bool hasUnreadBytes(pid_t process);

}  // namespace x11

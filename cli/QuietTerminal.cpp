// SPDX-License-Identifier: MIT
#include "cli/QuietTerminal.h"

#include <poll.h>
#include <unistd.h>

QuietTerminal::QuietTerminal() {
    if (tcgetpgrp(STDIN_FILENO) != getpgrp()) return;
    const auto quieten = [](termios& settings) { settings.c_lflag &= ~static_cast<tcflag_t>(ECHO | ICANON); };
    m_mode.emplace(STDIN_FILENO, quieten, TCSAFLUSH);
}

void QuietTerminal::awaitKey() const {
    constexpr int longest = 200;
    pollfd waited{STDIN_FILENO, POLLIN, 0};
    if (m_mode && *m_mode) poll(&waited, 1, longest);
}

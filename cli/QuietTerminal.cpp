// SPDX-License-Identifier: MIT
#include "cli/QuietTerminal.h"

#include <poll.h>
#include <unistd.h>

QuietTerminal::QuietTerminal() {
    termios settings{};
    if (tcgetpgrp(STDIN_FILENO) != getpgrp() || tcgetattr(STDIN_FILENO, &settings) != 0) return;
    m_former = settings;
    settings.c_lflag &= ~static_cast<tcflag_t>(ECHO | ICANON);
    tcsetattr(STDIN_FILENO, TCSANOW, &settings);
}

QuietTerminal::~QuietTerminal() {
    if (m_former) tcsetattr(STDIN_FILENO, TCSAFLUSH, &*m_former);
}

void QuietTerminal::awaitKey() const {
    constexpr int longest = 200;
    pollfd waited{STDIN_FILENO, POLLIN, 0};
    if (m_former) poll(&waited, 1, longest);
}

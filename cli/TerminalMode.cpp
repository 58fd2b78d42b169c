// SPDX-License-Identifier: MIT
#include "cli/TerminalMode.h"

TerminalMode::TerminalMode(int terminal, const std::function<void(termios&)>& change, int back)
    : m_terminal(terminal), m_back(back) {
    termios settings{};
    if (tcgetattr(terminal, &settings) != 0) return;
    m_former = settings;
    change(settings);
    tcsetattr(terminal, TCSANOW, &settings);
}

TerminalMode::~TerminalMode() {
    if (m_former) tcsetattr(m_terminal, m_back, &*m_former);
}

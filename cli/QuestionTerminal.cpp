// SPDX-License-Identifier: MIT
#include "cli/QuestionTerminal.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

#include "cli/TerminalMode.h"
#include "platform/TerminalText.h"

QuestionTerminal::QuestionTerminal() : m_terminal(open("/dev/tty", O_RDWR | O_CLOEXEC | O_NOCTTY)) {}

void QuestionTerminal::write(std::string_view text) const {
    // A terminal that is gone has nobody in front of it.
    [[maybe_unused]] const int error = writeAll(m_terminal.number(), harmlessText(text));
}

bool QuestionTerminal::read() {
    std::array<char, 4096> bytes{};
    const ssize_t count = ::read(m_terminal.number(), bytes.data(), bytes.size());
    if (count > 0) m_typed.append(bytes.data(), static_cast<std::size_t>(count));
    return count > 0 || (count < 0 && errno == EINTR);
}

QuestionTerminal::Came QuestionTerminal::takeLine(std::string& line, const Patience& patience) {
    using std::chrono::milliseconds;
    constexpr milliseconds longest{100};
    std::size_t end = std::string::npos;
    while ((end = m_typed.find('\n')) == std::string::npos) {
        if (patience.isStopped()) return Came::stop;
        milliseconds wait = longest;
        if (patience.deadline) {
            const auto rest = *patience.deadline - std::chrono::steady_clock::now();
            if (rest <= rest.zero()) return Came::deadline;
            wait = std::min(wait, std::chrono::ceil<milliseconds>(rest));
        }
        pollfd waited{m_terminal.number(), POLLIN, 0};
        if (poll(&waited, 1, static_cast<int>(wait.count())) < 1 || read()) continue;
        if (m_typed.empty()) return Came::endOfInput;
        // It ends what was typed, as a line end would.
        m_typed += '\n';
    }
    line = m_typed.substr(0, end);
    m_typed.erase(0, end + 1);
    return Came::line;
}

QuestionTerminal::Came QuestionTerminal::takeHiddenLine(std::string_view prompt, std::string& line,
                                                        const Patience& patience) {
    const auto hide = [](termios& settings) {
        settings.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        // Nobody catches what they send, and the terminal would stay so.
        settings.c_cc[VQUIT] = _POSIX_VDISABLE;
        settings.c_cc[VSUSP] = _POSIX_VDISABLE;
    };
    const TerminalMode hidden(m_terminal.number(), hide, TCSANOW);
    write(prompt);
    const Came came = takeLine(line, patience);
    // The line end was not shown either.
    write("\n");
    return came;
}

// SPDX-License-Identifier: MIT
#include "cli/QuestionTerminal.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

#include "cli/TerminalText.h"

QuestionTerminal::QuestionTerminal() : m_terminal(open("/dev/tty", O_RDWR | O_CLOEXEC | O_NOCTTY)) {}

QuestionTerminal::~QuestionTerminal() { showTyping(true); }

void QuestionTerminal::write(std::string_view text) const {
    const std::string harmless = harmlessText(text);
    std::string_view rest = harmless;
    while (!rest.empty()) {
        const ssize_t count = ::write(m_terminal.number(), rest.data(), rest.size());
        // A terminal that is gone has nobody in front of it.
        if (count < 0 && errno != EINTR) return;
        rest.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
}

void QuestionTerminal::showTyping(bool isShown) {
    if (isShown) {
        if (m_former) tcsetattr(m_terminal.number(), TCSANOW, &*m_former);
        m_former.reset();
        return;
    }
    termios settings{};
    if (tcgetattr(m_terminal.number(), &settings) != 0) return;
    m_former = settings;
    settings.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    // Nobody catches what they send, and the terminal would stay so.
    settings.c_cc[VQUIT] = _POSIX_VDISABLE;
    settings.c_cc[VSUSP] = _POSIX_VDISABLE;
    tcsetattr(m_terminal.number(), TCSANOW, &settings);
}

bool QuestionTerminal::read() {
    std::array<char, 4096> bytes{};
    const ssize_t count = ::read(m_terminal.number(), bytes.data(), bytes.size());
    if (count > 0) m_typed.append(bytes.data(), static_cast<std::size_t>(count));
    return count > 0 || (count < 0 && errno == EINTR);
}

QuestionTerminal::Came QuestionTerminal::takeLine(std::string& line, const std::function<bool()>& isStopped,
                                                  std::optional<Time> deadline) {
    using std::chrono::milliseconds;
    constexpr milliseconds longest{100};
    std::size_t end = std::string::npos;
    while ((end = m_typed.find('\n')) == std::string::npos) {
        if (isStopped()) return Came::stop;
        milliseconds patience = longest;
        if (deadline) {
            const auto rest = *deadline - std::chrono::steady_clock::now();
            if (rest <= rest.zero()) return Came::deadline;
            patience = std::min(patience, std::chrono::ceil<milliseconds>(rest));
        }
        pollfd waited{m_terminal.number(), POLLIN, 0};
        if (poll(&waited, 1, static_cast<int>(patience.count())) < 1 || read()) continue;
        if (m_typed.empty()) return Came::endOfInput;
        // It ends what was typed, as a line end would.
        m_typed += '\n';
    }
    line = m_typed.substr(0, end);
    m_typed.erase(0, end + 1);
    return Came::line;
}

QuestionTerminal::Came QuestionTerminal::takeHiddenLine(std::string_view prompt, std::string& line,
                                                        const std::function<bool()>& isStopped,
                                                        std::optional<Time> deadline) {
    showTyping(false);
    write(prompt);
    const Came came = takeLine(line, isStopped, deadline);
    showTyping(true);
    // The line end was not shown either.
    write("\n");
    return came;
}

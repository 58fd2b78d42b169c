// SPDX-License-Identifier: MIT
#pragma once

#include <termios.h>

#include <functional>
#include <optional>

/// A terminal with other settings (termios(3)) for as long as it lives; then it has those from before.
/// Nothing where there is no terminal.
class TerminalMode {
  public:
    /// `change` gets the settings as they are; `back` is how tcsetattr(3) puts them back.
    TerminalMode(int terminal, const std::function<void(termios&)>& change, int back);
    ~TerminalMode();
    TerminalMode(const TerminalMode&) = delete;
    TerminalMode& operator=(const TerminalMode&) = delete;

    /// Whether there is a terminal.
    explicit operator bool() const { return m_former.has_value(); }

  private:
    int m_terminal;
    int m_back;
    std::optional<termios> m_former;
};

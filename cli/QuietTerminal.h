// SPDX-License-Identifier: MIT
#pragma once

#include <termios.h>

#include <optional>

/// While it lives, what is typed into the terminal of standard input is not shown there, and at its end it is
/// gone: keys are pressed to be looked at. Without a terminal, or in the background, it does nothing. Keys
/// that end a program go on to do so.
class QuietTerminal {
  public:
    QuietTerminal();
    ~QuietTerminal();
    QuietTerminal(const QuietTerminal&) = delete;
    QuietTerminal& operator=(const QuietTerminal&) = delete;

    /// Waits a moment until the terminal has been told of the key that was pressed, which may come later than
    /// the key itself; some keys type nothing.
    void awaitKey() const;

  private:
    std::optional<termios> m_former;
};

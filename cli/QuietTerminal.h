// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "cli/TerminalMode.h"

/// While it lives, what is typed into the terminal of standard input is not shown there, and at its end it is
/// gone: keys are pressed to be looked at. Without a terminal, or in the background, it does nothing. Keys
/// that end a program go on to do so.
class QuietTerminal {
  public:
    QuietTerminal();

    /// Waits a moment until the terminal has been told of the key that was pressed, which may come later than
    /// the key itself; some keys type nothing.
    void awaitKey() const;

  private:
    std::optional<TerminalMode> m_mode;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <termios.h>

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Descriptor.h"

/// The terminal that the program runs in, to ask something on it. What is typed comes in lines; at the
/// object's end it is shown there as before.
class QuestionTerminal {
  public:
    using Time = std::chrono::steady_clock::time_point;

    /// What a wait for a line has ended with.
    enum class Came { line, endOfInput, stop, deadline };

    QuestionTerminal();
    ~QuestionTerminal();
    QuestionTerminal(const QuestionTerminal&) = delete;
    QuestionTerminal& operator=(const QuestionTerminal&) = delete;

    /// Whether the program runs in one.
    explicit operator bool() const { return static_cast<bool>(m_terminal); }

    /// UTF-8; control characters in it do nothing.
    void write(std::string_view text) const;

    /// Waits for the next line, which comes without its end. `isStopped` is asked several times a second.
    Came takeLine(std::string& line, const std::function<bool()>& isStopped, std::optional<Time> deadline);
    /// The same, with what is typed not shown from before the prompt is.
    Came takeHiddenLine(std::string_view prompt, std::string& line, const std::function<bool()>& isStopped,
                        std::optional<Time> deadline);

  private:
    void showTyping(bool isShown);
    /// False when nothing comes any more.
    bool read();

    Descriptor m_terminal;
    /// As it was when what is typed was hidden.
    std::optional<termios> m_former;
    /// Read and not taken yet.
    std::string m_typed;
};

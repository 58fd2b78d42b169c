// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Descriptor.h"

/// The terminal that the program runs in, to ask something on it. What is typed comes in lines.
class QuestionTerminal {
  public:
    using Time = std::chrono::steady_clock::time_point;

    /// What a wait for a line has ended with.
    enum class Came { line, endOfInput, stop, deadline };

    /// When a wait ends without one.
    struct Patience {
        /// Asked several times a second.
        std::function<bool()> isStopped;
        std::optional<Time> deadline = {};
    };

    QuestionTerminal();

    /// Whether the program runs in one.
    explicit operator bool() const { return static_cast<bool>(m_terminal); }

    /// UTF-8; control characters in it do nothing.
    void write(std::string_view text) const;

    /// Waits for the next line, which comes without its end.
    Came takeLine(std::string& line, const Patience& patience);
    /// The same, with what is typed not shown from before the prompt is.
    Came takeHiddenLine(std::string_view prompt, std::string& line, const Patience& patience);

  private:
    /// False when nothing comes any more.
    bool read();

    Descriptor m_terminal;
    /// Read and not taken yet.
    std::string m_typed;
};

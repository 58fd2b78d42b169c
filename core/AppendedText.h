// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// A text that only grows. No single append() costs more than the part appended and as much again, however
/// long the text is.
///
/// Why not a string alone: that one copies the whole text when its room is full, which a text of a million
/// characters makes felt. Here the text is carried over to its next, larger room bit by bit beforehand.
class AppendedText {
  public:
    /// UTF-8. The reference is good until the next append().
    const std::string& text() const { return m_text; }

    void append(std::string_view part);

  private:
    std::string m_text;
    /// A beginning of m_text, in the room that it moves to when its own is full.
    std::string m_next;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Result.h"

namespace steps {

/// A part of a text that becomes another. Offsets and sizes are in bytes.
struct Splice {
    std::size_t offset = 0;
    std::size_t removed = 0;
    std::string inserted = {};

    friend bool operator==(const Splice&, const Splice&) = default;
};

/// The text after the splice, which has to lie in it.
std::string spliced(std::string text, const Splice& splice);
/// The smallest splice that makes `after` of `before`; it cuts no character of UTF-8 in two.
Splice spliceBetween(std::string_view before, std::string_view after);

enum class LineKind : std::uint8_t {
    key,    ///< key code (1) using {command down}
    pause,  ///< delay 0.5
    text,   ///< keystroke "Hello"
    down,   ///< key down option
    up,     ///< key up option
};

/// One step of a recorded macro: its line of script, and the one of the short delay after it.
struct Line {
    LineKind kind = LineKind::key;
    /// Of a key: platform/KeyCodes.h, platform/Modifiers.h. Of a modifier that goes down or up: that one.
    std::uint32_t keyCode = 0;
    std::uint32_t modifiers = 0;
    /// Of a pause.
    double seconds = 0;
    /// Where both lines stand in the script, in bytes.
    std::size_t begin = 0;
    std::size_t size = 0;
    /// The bytes before `begin` that are comments and empty lines.
    std::size_t remarks = 0;
};

/// Why a script is not of the shape that recordings have.
struct OtherShape {
    /// Where the first step begins that none of a recording is, counted from 1; one behind the last line if
    /// some are missing.
    std::size_t line = 1;
};

/// A script of the shape that recordings have: nothing but key presses, held modifiers, pauses and typed
/// texts one below the other, each as it is written when it is recorded or edited. Lines of comment ("--",
/// "#") and empty ones may stand anywhere between them. It can be edited step by step.
///
/// The edits are splices, so that all lines that are not edited stay as they are, byte for byte. What a
/// splice makes of the script has the shape again. Comments go with the line below them when it is moved, and
/// stay when it is erased or replaced. Lines are counted from 0, `first` and `count` lie within them.
class RecordedScript {
  public:
    static Result<RecordedScript, OtherShape> parse(std::string script);

    const std::string& script() const { return m_script; }
    const std::vector<Line>& lines() const { return m_lines; }
    /// What the line types, UTF-8; empty for those of other kinds.
    std::string textOf(const Line& line) const;

    Splice erased(std::size_t first, std::size_t count) const;
    /// The lines stand before the one that is `before` now, at most the number of lines. One of them itself
    /// moves nothing.
    Splice moved(std::size_t first, std::size_t count, std::size_t before) const;
    /// The lines stand there so often, one or more times; their comments once.
    Splice repeated(std::size_t first, std::size_t count, std::size_t times) const;
    /// Lines, as keyLines(), textLines() and pauseLines() make them, stand in the place of others; of none
    /// with the `count` 0.
    Splice replaced(std::size_t first, std::size_t count, std::string_view lines) const;
    /// Lines stand in the place of one or more others, below the comments of the first; what is in `lines`
    /// has the comments of the rest.
    Splice rewritten(std::size_t first, std::size_t count, std::string lines) const;

    /// What the line stands for in the script, without what is told about it.
    std::string_view bytesOf(const Line& line) const;
    /// The comments and empty lines before a line, with their ends.
    std::string_view remarksOf(const Line& line) const;
    /// All lines of comment, one below the other.
    std::string comments() const;

  private:
    explicit RecordedScript(std::string script) : m_script(std::move(script)) {}

    /// With its comments.
    std::size_t beginOf(std::size_t line) const;
    std::string_view bytesOf(std::size_t first, std::size_t count) const;

    std::string m_script;
    std::vector<Line> m_lines;
    /// Where the last line ends.
    std::size_t m_end = 0;
};

/// Around the lines of a recording.
inline constexpr std::string_view firstLine = "tell application \"System Events\"\n";
inline constexpr std::string_view lastLine = "end tell\n";

/// The script of a step, with the short delay after it.
std::string keyLines(std::uint32_t keyCode, std::uint32_t modifiers);
/// Seconds are written with six digits.
std::string pauseLines(double seconds);
/// `text` is UTF-8. Written in ASCII, since that is what macro files are.
std::string textLines(std::string_view text);

}  // namespace steps

// SPDX-License-Identifier: MIT
#include "library/steps/RecordedScript.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "core/Delay.h"
#include "core/KeyCode.h"
#include "library/steps/TextExpression.h"
#include "platform/Modifiers.h"
#include "platform/Parts.h"
#include "platform/Utf8.h"

namespace steps {
namespace {

constexpr std::string_view shortDelay = "delay 0.01\n";

struct ModifierWord {
    std::uint32_t modifier;
    std::string_view word;
};

/// In the order in which actionpack::KeyCode writes them.
constexpr std::array<ModifierWord, 4> modifierWords = {{
    {modifier::command, "command"},
    {modifier::shift, "shift"},
    {modifier::option, "option"},
    {modifier::control, "control"},
}};

std::string_view withoutIndent(std::string_view line) {
    return line.substr(std::min(line.find_first_not_of(" \t"), line.size()));
}

bool isBlank(std::string_view line) { return withoutIndent(line).empty(); }

/// The whole line, which the other line end would end too.
bool isComment(std::string_view line) {
    const std::string_view words = withoutIndent(line);
    return (words.starts_with("--") || words.starts_with('#')) && line.find('\r') == std::string_view::npos;
}

bool isDigit(char character) { return character >= '0' && character <= '9'; }

/// Reads a recording from its start. What is not there as it is written is not read at all.
class LineReader {
  public:
    explicit LineReader(std::string_view rest) : m_rest(rest) {}

    std::string_view rest() const { return m_rest; }

    bool accept(std::string_view words) {
        if (!m_rest.starts_with(words)) return false;
        m_rest.remove_prefix(words.size());
        return true;
    }

    /// Comments and empty lines.
    void passRemarks() {
        for (std::string_view rest = m_rest; !rest.empty(); m_rest = rest) {
            const std::string_view line = takePart(rest, '\n');
            if (!isBlank(line) && !isComment(line)) return;
        }
    }

    /// key = "\tkey code (" code ") using {" [ modifier { ", " modifier } ] "}\n" short-delay
    /// pause = "\tdelay " number "\n" short-delay
    /// text = "\tkeystroke " expression "\n" short-delay
    /// held = "\tkey " ( "down" | "up" ) " " word "\n" short-delay
    /// Without one, nothing is read.
    std::optional<Line> line() {
        Line line;
        const std::string_view before = m_rest;
        const bool isRead = accept("\tkey code (")  ? key(line)
                            : accept("\tdelay ")    ? pause(line)
                            : accept("\tkey down ") ? held(line, LineKind::down)
                            : accept("\tkey up ")   ? held(line, LineKind::up)
                                                    : accept("\tkeystroke ") && text(line);
        if (!isRead || !accept(shortDelay)) {
            m_rest = before;
            return std::nullopt;
        }
        line.size = before.size() - m_rest.size();
        return line;
    }

  private:
    bool key(Line& line) {
        line.kind = LineKind::key;
        return code(line.keyCode) && accept(") using {") && modifiers(line.modifiers) && accept("}\n");
    }

    bool code(std::uint32_t& code) {
        const auto [end, error] = std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), code);
        const auto digits = static_cast<std::size_t>(end - m_rest.data());
        if (error != std::errc() || (digits > 1 && m_rest.front() == '0')) return false;
        m_rest.remove_prefix(digits);
        return true;
    }

    bool modifiers(std::uint32_t& modifiers) {
        for (const ModifierWord& row : modifierWords) {
            std::string_view rest = m_rest;
            if (modifiers != 0 && !accept(", ")) break;
            if (accept(row.word) && accept(" down")) {
                modifiers |= row.modifier;
            } else {
                m_rest = rest;
            }
        }
        return true;
    }

    bool pause(Line& line) {
        line.kind = LineKind::pause;
        const std::string_view number = restOfLine();
        const std::size_t sign = number.starts_with('-') ? 1 : 0;
        if (number.size() == sign || !isDigit(number[sign])) return false;
        const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), line.seconds);
        return error == std::errc() && end == number.data() + number.size();
    }

    bool text(Line& line) {
        line.kind = LineKind::text;
        return textOfExpression(restOfLine()).has_value();
    }

    bool held(Line& line, LineKind kind) {
        line.kind = kind;
        const std::string_view word = restOfLine();
        const auto* const row =
            std::find_if(modifierWords.begin(), modifierWords.end(),
                         [word](const ModifierWord& known) { return known.word == word; });
        if (row == modifierWords.end()) return false;
        line.modifiers = row->modifier;
        return true;
    }

    /// And passes the line end.
    std::string_view restOfLine() { return takePart(m_rest, '\n'); }

    std::string_view m_rest;
};

/// The number of equal bytes in front.
std::size_t commonPrefix(std::string_view one, std::string_view other) {
    const auto* const end = std::mismatch(one.begin(), one.end(), other.begin(), other.end()).first;
    return static_cast<std::size_t>(end - one.begin());
}

std::size_t commonSuffix(std::string_view one, std::string_view other) {
    const auto end = std::mismatch(one.rbegin(), one.rend(), other.rbegin(), other.rend()).first;
    return static_cast<std::size_t>(end - one.rbegin());
}

/// Whether the byte there, if there is one, belongs to the character before it.
bool isInsideCharacter(std::string_view text, std::size_t offset) {
    return offset < text.size() && isUtf8Continuation(text[offset]);
}

}  // namespace

std::string spliced(std::string text, const Splice& splice) {
    text.replace(splice.offset, splice.removed, splice.inserted);
    return text;
}

Splice spliceBetween(std::string_view before, std::string_view after) {
    std::size_t prefix = commonPrefix(before, after);
    while (prefix > 0 && (isInsideCharacter(before, prefix) || isInsideCharacter(after, prefix))) --prefix;
    std::size_t suffix = commonSuffix(before.substr(prefix), after.substr(prefix));
    while (suffix > 0 && isInsideCharacter(after, after.size() - suffix)) --suffix;
    return {prefix, before.size() - prefix - suffix,
            std::string(after.substr(prefix, after.size() - prefix - suffix))};
}

Result<RecordedScript, OtherShape> RecordedScript::parse(std::string script) {
    RecordedScript recorded(std::move(script));
    const std::string_view whole = recorded.m_script;
    LineReader reader(whole);
    const auto offset = [&] { return whole.size() - reader.rest().size(); };
    const auto otherShape = [&] {
        const std::string_view before = whole.substr(0, offset());
        return OtherShape{1 + static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'))};
    };
    reader.passRemarks();
    if (!reader.accept(firstLine)) return otherShape();
    for (;;) {
        recorded.m_end = offset();
        reader.passRemarks();
        if (reader.accept(lastLine)) break;
        const std::size_t begin = offset();
        std::optional<Line> line = reader.line();
        if (!line) return otherShape();
        line->begin = begin;
        line->remarks = begin - recorded.m_end;
        recorded.m_lines.push_back(*line);
    }
    reader.passRemarks();
    if (!reader.rest().empty()) return otherShape();
    return recorded;
}

std::string RecordedScript::textOf(const Line& line) const {
    constexpr std::string_view command = "\tkeystroke ";
    if (line.kind != LineKind::text) return {};
    const std::size_t size = line.size - command.size() - 1 - shortDelay.size();
    const std::string_view script = m_script;
    return textOfExpression(script.substr(line.begin + command.size(), size)).value_or(std::string());
}

Splice RecordedScript::erased(std::size_t first, std::size_t count) const {
    return replaced(first, count, {});
}

Splice RecordedScript::moved(std::size_t first, std::size_t count, std::size_t before) const {
    const std::size_t end = first + count;
    if (before >= first && before <= end) return {beginOf(first), 0, {}};
    const std::size_t begin = std::min(first, before);
    const std::string_view lines = bytesOf(first, count);
    // What the lines pass comes to their other side.
    const std::string_view passed =
        before < first ? bytesOf(before, first - before) : bytesOf(end, before - end);
    std::string inserted(before < first ? lines : passed);
    inserted += before < first ? passed : lines;
    return {beginOf(begin), inserted.size(), std::move(inserted)};
}

Splice RecordedScript::repeated(std::size_t first, std::size_t count, std::size_t times) const {
    std::string lines;
    for (std::size_t index = first; index < first + count; ++index) lines += bytesOf(m_lines[index]);
    std::string inserted;
    inserted.reserve(lines.size() * (times - 1));
    for (std::size_t time = 1; time < times; ++time) inserted += lines;
    return {beginOf(first + count), 0, std::move(inserted)};
}

Splice RecordedScript::replaced(std::size_t first, std::size_t count, std::string_view lines) const {
    std::string remarks;
    for (std::size_t index = first; index < first + count; ++index) remarks += remarksOf(m_lines[index]);
    remarks += lines;
    return {beginOf(first), bytesOf(first, count).size(), std::move(remarks)};
}

Splice RecordedScript::rewritten(std::size_t first, std::size_t count, std::string lines) const {
    const std::size_t begin = m_lines[first].begin;
    return {begin, beginOf(first + count) - begin, std::move(lines)};
}

std::string RecordedScript::comments() const {
    std::string comments;
    std::string_view rest = m_script;
    while (!rest.empty()) {
        const std::string_view line = takePart(rest, '\n');
        if (isComment(line)) comments.append(line).push_back('\n');
    }
    return comments;
}

std::size_t RecordedScript::beginOf(std::size_t line) const {
    return line < m_lines.size() ? m_lines[line].begin - m_lines[line].remarks : m_end;
}

std::string_view RecordedScript::bytesOf(std::size_t first, std::size_t count) const {
    const std::size_t begin = beginOf(first);
    return std::string_view(m_script).substr(begin, beginOf(first + count) - begin);
}

std::string_view RecordedScript::bytesOf(const Line& line) const {
    return std::string_view(m_script).substr(line.begin, line.size);
}

std::string_view RecordedScript::remarksOf(const Line& line) const {
    return std::string_view(m_script).substr(line.begin - line.remarks, line.remarks);
}

std::string keyLines(std::uint32_t keyCode, std::uint32_t modifiers) {
    actionpack::KeyCode key(keyCode, {}, 0);
    key.setModifiers(modifiers);
    return key.scriptLine().append(shortDelay);
}

std::string pauseLines(double seconds) { return actionpack::Delay(seconds).scriptLine().append(shortDelay); }

std::string textLines(std::string_view text) {
    return "\tkeystroke " + expressionOfText(text) + "\n" + std::string(shortDelay);
}

}  // namespace steps

// SPDX-License-Identifier: MIT
#include "library/steps/TextExpression.h"

#include <array>
#include <charconv>
#include <cstdint>

#include "platform/Utf8.h"

namespace steps {
namespace {

constexpr std::string_view join = " & ";
constexpr std::string_view numbersBegin = "(character id {";
constexpr std::string_view numbersEnd = "})";

struct Escape {
    char character;
    char letter;
};

constexpr std::array<Escape, 5> escapes = {{{'"', '"'}, {'\\', '\\'}, {'\n', 'n'}, {'\r', 'r'}, {'\t', 't'}}};

/// As it stands between quotes; empty for what cannot stand there in ASCII.
std::string quoted(char32_t character) {
    for (const Escape& escape : escapes) {
        if (character == static_cast<unsigned char>(escape.character)) return {'\\', escape.letter};
    }
    const bool isPrinted = character >= ' ' && character < 0x7F;
    return isPrinted ? std::string(1, static_cast<char>(character)) : std::string();
}

/// Writes the characters one after the other, with as few parts as can be.
class ExpressionWriter {
  public:
    void add(char32_t character) {
        const std::string plain = quoted(character);
        enter(plain.empty() ? Part::numbers : Part::quotes);
        m_expression += plain.empty() ? std::to_string(static_cast<std::uint32_t>(character)) : plain;
    }

    std::string finish() {
        if (m_part == Part::none) return "\"\"";
        leave();
        return std::move(m_expression);
    }

  private:
    enum class Part { none, quotes, numbers };

    void enter(Part part) {
        if (part == m_part) {
            if (part == Part::numbers) m_expression += ", ";
            return;
        }
        leave();
        if (m_part != Part::none) m_expression += join;
        m_expression += part == Part::quotes ? "\"" : numbersBegin;
        m_part = part;
    }

    void leave() {
        if (m_part == Part::quotes) m_expression += '"';
        if (m_part == Part::numbers) m_expression += numbersEnd;
    }

    std::string m_expression;
    Part m_part = Part::none;
};

/// Reads an expression part by part; false where it reads otherwise.
class ExpressionReader {
  public:
    explicit ExpressionReader(std::string_view rest) : m_rest(rest) {}

    bool read(std::string& text) {
        do {
            const bool isPart = accept("\"") ? quotes(text) : accept(numbersBegin) && numbers(text);
            if (!isPart) return false;
        } while (accept(join));
        return m_rest.empty();
    }

  private:
    bool accept(std::string_view words) {
        if (!m_rest.starts_with(words)) return false;
        m_rest.remove_prefix(words.size());
        return true;
    }

    bool quotes(std::string& text) {
        while (!accept("\"")) {
            if (accept("\\")) {
                if (!escaped(text)) return false;
            } else if (m_rest.empty()) {
                return false;
            } else {
                text += m_rest.front();
                m_rest.remove_prefix(1);
            }
        }
        return true;
    }

    bool escaped(std::string& text) {
        for (const Escape& escape : escapes) {
            if (!m_rest.starts_with(escape.letter)) continue;
            text += escape.character;
            m_rest.remove_prefix(1);
            return true;
        }
        return false;
    }

    bool numbers(std::string& text) {
        constexpr std::uint32_t lastCharacter = 0x10FFFF;
        do {
            std::uint32_t number = 0;
            const auto [end, error] = std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), number);
            if (error != std::errc() || number > lastCharacter) return false;
            m_rest.remove_prefix(static_cast<std::size_t>(end - m_rest.data()));
            appendUtf8(text, number);
        } while (accept(", "));
        return accept(numbersEnd);
    }

    std::string_view m_rest;
};

}  // namespace

std::string expressionOfText(std::string_view text) {
    ExpressionWriter writer;
    for (std::size_t position = 0; position < text.size();) writer.add(takeCharacter(text, position));
    return writer.finish();
}

std::optional<std::string> textOfExpression(std::string_view expression) {
    std::string text;
    if (!ExpressionReader(expression).read(text) || expressionOfText(text) != expression) return std::nullopt;
    return text;
}

}  // namespace steps

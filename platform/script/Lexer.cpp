// SPDX-License-Identifier: MIT
#include "platform/script/Lexer.h"

#include <algorithm>
#include <array>

namespace script {
namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view noBreakSpace = "\xC2\xA0";
constexpr std::string_view continuation = "¬";

/// `gap` are the bytes with which something may begin that gives no token.
enum class Class : unsigned char { other, letter, digit, gap };

constexpr std::array<Class, 256> classes = [] {
    std::array<Class, 256> table{};
    for (std::size_t c = 'a'; c <= 'z'; ++c) table[c] = Class::letter;
    for (std::size_t c = 'A'; c <= 'Z'; ++c) table[c] = Class::letter;
    for (std::size_t c = '0'; c <= '9'; ++c) table[c] = Class::digit;
    table['_'] = Class::letter;
    for (const char c : {' ', '\t', '#', '-', '(', noBreakSpace.front(), continuation.front()}) {
        table[static_cast<unsigned char>(c)] = Class::gap;
    }
    return table;
}();

Class classOf(char c) { return classes[static_cast<unsigned char>(c)]; }
bool isDigit(char c) { return classOf(c) == Class::digit; }
bool isWordCharacter(char c) { return classOf(c) == Class::letter || isDigit(c); }
bool isLineEnd(char c) { return c == '\n' || c == '\r'; }

struct Symbol {
    std::string_view spelling;
    TokenKind kind;
};

/// Where one spelling begins another, the longer stands first.
constexpr auto symbols = std::to_array<Symbol>({
    {"(", TokenKind::leftParenthesis},
    {")", TokenKind::rightParenthesis},
    {"{", TokenKind::leftBrace},
    {"}", TokenKind::rightBrace},
    {",", TokenKind::comma},
    {":", TokenKind::colon},
    {"'s", TokenKind::possessive},
    {"&", TokenKind::ampersand},
    {"+", TokenKind::plus},
    {"-", TokenKind::minus},
    {"*", TokenKind::star},
    {"/=", TokenKind::notEqual},
    {"/", TokenKind::slash},
    {"÷", TokenKind::slash},
    {"^", TokenKind::caret},
    {"=", TokenKind::equal},
    {"≠", TokenKind::notEqual},
    {"<=", TokenKind::lessEqual},
    {"≤", TokenKind::lessEqual},
    {"<", TokenKind::less},
    {">=", TokenKind::greaterEqual},
    {"≥", TokenKind::greaterEqual},
    {">", TokenKind::greater},
    {"«", TokenKind::rawCode},
    {"»", TokenKind::rawCode},
    {"《", TokenKind::rawCode},
    {"》", TokenKind::rawCode},
});

/// The bytes of the UTF-8 character that `first` begins.
std::size_t characterLength(char first) {
    const auto byte = static_cast<unsigned char>(first);
    if (byte < 0xC0U) return 1;
    if (byte < 0xE0U) return 2;
    return byte < 0xF0U ? 3 : 4;
}

}  // namespace

Lexer::Lexer(std::string_view source) : m_source(source) {
    if (startsWith(byteOrderMark)) m_position = byteOrderMark.size();
}

Token Lexer::next() {
    if (const std::optional<Token> fault = skipGap()) return *fault;
    if (m_position >= m_source.size()) return take(TokenKind::endOfScript, 0);
    const char c = m_source[m_position];
    if (classOf(c) == Class::letter) return word();
    if (isDigit(c) || (c == '.' && isDigit(at(m_position + 1)))) return number();
    if (isLineEnd(c)) return take(TokenKind::endOfLine, c == '\r' && at(m_position + 1) == '\n' ? 2 : 1);
    if (c == '"') return text();
    if (c == '|') return barredName();
    return symbol();
}

Token Lexer::take(TokenKind kind, std::size_t length, Word word) {
    const std::string_view text = m_source.substr(m_position, length);
    m_position += text.size();
    return {kind, word, text};
}

/// Skips all that gives no token. A gap that does not end is a token.
std::optional<Token> Lexer::skipGap() {
    while (m_position < m_source.size() && classOf(m_source[m_position]) == Class::gap) {
        const std::size_t start = m_position;
        const char c = m_source[m_position];
        if (skipBlank()) continue;
        if (c == '#' || (c == '-' && at(m_position + 1) == '-')) {
            skipLine();
        } else if (c == '(' && at(m_position + 1) == '*') {
            if (skipBlockComment()) continue;
            return take(TokenKind::openComment, 0);
        } else if (startsWith(continuation)) {
            if (skipContinuation()) continue;
            m_position = start;
            return take(TokenKind::strayContinuation, continuation.size());
        } else {
            break;
        }
    }
    return std::nullopt;
}

bool Lexer::skipBlank() {
    const char c = at(m_position);
    if (c == ' ' || c == '\t') {
        ++m_position;
        return true;
    }
    if (c != noBreakSpace.front() || !startsWith(noBreakSpace)) return false;
    m_position += noBreakSpace.size();
    return true;
}

/// To the line end, which stays.
void Lexer::skipLine() { m_position = std::min(m_source.find_first_of("\r\n", m_position), m_source.size()); }

/// Only `(*` and `*)` count inside; false if the comment never ends.
bool Lexer::skipBlockComment() {
    std::size_t depth = 0;
    while (m_position < m_source.size()) {
        const char c = m_source[m_position];
        const char following = at(m_position + 1);
        const bool opens = c == '(' && following == '*';
        const bool closes = c == '*' && following == ')';
        m_position += opens || closes ? 2 : 1;
        if (opens) ++depth;
        if (closes && --depth == 0) return true;
    }
    return false;
}

bool Lexer::skipLineEnd() {
    if (m_position >= m_source.size()) return true;
    if (!isLineEnd(m_source[m_position])) return false;
    m_position += m_source[m_position] == '\r' && at(m_position + 1) == '\n' ? 2 : 1;
    return true;
}

/// The sign, blanks, perhaps a comment, and one line end; false if something else stands there.
bool Lexer::skipContinuation() {
    m_position += continuation.size();
    while (skipBlank()) {
    }
    if (at(m_position) == '#' || startsWith("--")) skipLine();
    return skipLineEnd();
}

/// Also "isn't" and "doesn't", the only words with an apostrophe.
Token Lexer::word() {
    std::size_t end = m_position + 1;
    while (end < m_source.size() && isWordCharacter(m_source[end])) ++end;
    const Word whole = wordOf(m_source.substr(m_position, end - m_position + 2));
    if (whole == Word::isnt || whole == Word::doesnt) end += 2;
    const std::size_t length = end - m_position;
    return take(TokenKind::identifier, length, wordOf(m_source.substr(m_position, length)));
}

/// Between bars all characters but line ends make a name; a bar or backslash needs a backslash.
Token Lexer::barredName() {
    std::size_t end = m_position + 1;
    while (end < m_source.size() && m_source[end] != '|' && !isLineEnd(m_source[end])) {
        end += m_source[end] == '\\' && end + 1 < m_source.size() && !isLineEnd(m_source[end + 1]) ? 2 : 1;
    }
    if (at(end) != '|') return take(TokenKind::unknown, 1);
    return take(TokenKind::identifier, end + 1 - m_position);
}

/// Digits, perhaps a point and digits, perhaps an exponent with digits. The sign is an operator.
Token Lexer::number() {
    std::size_t end = m_position;
    while (isDigit(at(end))) ++end;
    if (at(end) == '.') ++end;
    while (isDigit(at(end))) ++end;
    if (at(end) == 'e' || at(end) == 'E') {
        const std::size_t digits = end + (at(end + 1) == '+' || at(end + 1) == '-' ? 2 : 1);
        if (isDigit(at(digits))) end = digits;
        while (isDigit(at(end))) ++end;
    }
    return take(TokenKind::number, end - m_position);
}

/// To the next quote without a backslash; line ends may stand inside.
Token Lexer::text() {
    std::size_t end = m_source.find_first_of("\"\\", m_position + 1);
    while (end != std::string_view::npos && m_source[end] == '\\') {
        end = m_source.find_first_of("\"\\", end + 2);
    }
    if (end == std::string_view::npos) {
        const Token fault{TokenKind::openText, Word::none, m_source.substr(m_position)};
        m_position = m_source.size();
        return fault;
    }
    return take(TokenKind::text, end + 1 - m_position);
}

Token Lexer::symbol() {
    for (const Symbol& candidate : symbols) {
        if (candidate.spelling.front() != m_source[m_position]) continue;
        if (startsWith(candidate.spelling)) return take(candidate.kind, candidate.spelling.size());
    }
    return take(TokenKind::unknown, characterLength(m_source[m_position]));
}

}  // namespace script

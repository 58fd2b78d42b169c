// SPDX-License-Identifier: MIT
#include "platform/script/source/Lexer.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "platform/script/source/Trivia.h"

namespace script {
namespace {

/// `gap` are the bytes with which something may begin that gives no token, blanks aside.
enum class Class : unsigned char { other, letter, digit, blank, lineEnd, gap };

constexpr std::array<Class, 256> classes = [] {
    std::array<Class, 256> table{};
    for (std::size_t c = 'a'; c <= 'z'; ++c) table[c] = Class::letter;
    for (std::size_t c = 'A'; c <= 'Z'; ++c) table[c] = Class::letter;
    for (std::size_t c = '0'; c <= '9'; ++c) table[c] = Class::digit;
    table['_'] = Class::letter;
    for (const char c : {' ', '\t'}) table[static_cast<unsigned char>(c)] = Class::blank;
    for (const char c : {'\n', '\r'}) table[static_cast<unsigned char>(c)] = Class::lineEnd;
    for (const char c : {'#', '-', '(', noBreakSpace.front(), continuationSign.front()}) {
        table[static_cast<unsigned char>(c)] = Class::gap;
    }
    return table;
}();

Class classOf(char c) { return classes[static_cast<unsigned char>(c)]; }
bool isDigit(char c) { return classOf(c) == Class::digit; }
bool isWordCharacter(char c) { return classOf(c) == Class::letter || isDigit(c); }

struct Symbol {
    std::string_view spelling;
    TokenKind kind;
};

/// Those that begin with the same byte stand together, and of two that begin alike the longer one first.
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
    {"^", TokenKind::caret},
    {"=", TokenKind::equal},
    {"<=", TokenKind::lessEqual},
    {"<", TokenKind::less},
    {">=", TokenKind::greaterEqual},
    {">", TokenKind::greater},
    {"«", TokenKind::rawCode},
    {"»", TokenKind::rawCode},
    {"÷", TokenKind::slash},
    {"≠", TokenKind::notEqual},
    {"≤", TokenKind::lessEqual},
    {"≥", TokenKind::greaterEqual},
    {"《", TokenKind::rawCode},
    {"》", TokenKind::rawCode},
});

/// By byte, the first symbol that begins with it; past the end for none.
constexpr std::array<std::uint8_t, 256> firstSymbols = [] {
    std::array<std::uint8_t, 256> table{};
    table.fill(symbols.size());
    for (std::size_t row = symbols.size(); row > 0; --row) {
        table[static_cast<unsigned char>(symbols[row - 1].spelling.front())] =
            static_cast<std::uint8_t>(row - 1);
    }
    return table;
}();

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
    while (m_position < m_source.size()) {
        const char c = m_source[m_position];
        switch (classOf(c)) {
            case Class::blank:
                ++m_position;
                break;
            case Class::letter:
                return word();
            case Class::digit:
                return number();
            case Class::lineEnd:
                return take(TokenKind::endOfLine, lineEndLength(rest()));
            case Class::gap: {
                const std::size_t start = m_position;
                const std::optional<Token> fault = skipGap();
                if (fault) return *fault;
                if (m_position == start) return symbol();
                break;
            }
            case Class::other:
                if (c == '"') return text();
                if (c == '|') return barredName();
                if (c == '.' && isDigit(at(m_position + 1))) return number();
                return symbol();
        }
    }
    return take(TokenKind::endOfScript, 0);
}

Token Lexer::take(TokenKind kind, std::size_t length) {
    const std::string_view text = m_source.substr(m_position, length);
    m_position += text.size();
    return {kind, Word::none, 0, text};
}

Token Lexer::takeWord(std::size_t length, std::uint32_t hash) {
    Token token = take(TokenKind::identifier, length);
    token.word = wordOf(token.text, hash);
    token.hash = hash;
    return token;
}

/// Skips a comment, a continuation or a no-break space, if one is here. One that does not end is a token.
std::optional<Token> Lexer::skipGap() {
    const char c = m_source[m_position];
    const char following = at(m_position + 1);
    if (c == '#' || (c == '-' && following == '-')) {
        skipLine();
    } else if (c == '(' && following == '*') {
        if (!skipBlockComment()) return take(TokenKind::openComment, 0);
    } else if (startsWith(continuationSign)) {
        const std::size_t start = m_position;
        if (skipContinuation()) return std::nullopt;
        m_position = start;
        return take(TokenKind::strayContinuation, continuationSign.size());
    } else {
        skipBlank();
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
void Lexer::skipLine() { m_position += lineLength(rest()); }

/// Goes to the end of the script and is false if the comment never ends.
bool Lexer::skipBlockComment() {
    const std::size_t length = blockCommentLength(rest());
    m_position = length == std::string_view::npos ? m_source.size() : m_position + length;
    return length != std::string_view::npos;
}

bool Lexer::skipLineEnd() {
    if (m_position >= m_source.size()) return true;
    if (!isLineEnd(m_source[m_position])) return false;
    m_position += lineEndLength(rest());
    return true;
}

/// The sign, blanks and comments, and one line end; false if something else stands there.
bool Lexer::skipContinuation() {
    m_position += continuationSign.size();
    while (skipBlank() || (startsWith("(*") && skipBlockComment())) {
    }
    if (beginsLineComment(rest())) skipLine();
    return skipLineEnd();
}

/// Also "isn't" and "doesn't", the only words with an apostrophe.
Token Lexer::word() {
    SpellingHash hash;
    std::size_t end = m_position;
    while (end < m_source.size() && isWordCharacter(m_source[end])) hash.add(m_source[end++]);
    const std::size_t length = end - m_position;
    if (at(end) == '\'' && end + 1 < m_source.size()) {
        const std::string_view whole = m_source.substr(m_position, length + 2);
        const std::uint32_t wholeHash = SpellingHash(whole).value();
        if (wordOf(whole, wholeHash) != Word::none) return takeWord(length + 2, wholeHash);
    }
    return takeWord(length, hash.value());
}

/// Between bars all characters but line ends make a name; a bar or backslash needs a backslash.
Token Lexer::barredName() {
    std::size_t end = m_position + 1;
    while (end < m_source.size() && m_source[end] != '|' && !isLineEnd(m_source[end])) {
        end += m_source[end] == '\\' && end + 1 < m_source.size() && !isLineEnd(m_source[end + 1]) ? 2 : 1;
    }
    if (at(end) != '|') return take(TokenKind::unknown, 1);
    Token name = take(TokenKind::identifier, end + 1 - m_position);
    name.hash = SpellingHash(name.text).value();
    return name;
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
        return take(TokenKind::openText, m_source.size() - m_position);
    }
    return take(TokenKind::text, end + 1 - m_position);
}

Token Lexer::symbol() {
    const char first = m_source[m_position];
    for (std::size_t row = firstSymbols[static_cast<unsigned char>(first)];
         row < symbols.size() && symbols[row].spelling.front() == first; ++row) {
        const Symbol& candidate = symbols[row];
        if (candidate.spelling.size() == 1 || startsWith(candidate.spelling)) {
            return take(candidate.kind, candidate.spelling.size());
        }
    }
    return take(TokenKind::unknown, characterLength(first));
}

std::string_view spellingOf(TokenKind kind) {
    const auto* row = std::find_if(symbols.begin(), symbols.end(),
                                   [&](const Symbol& symbol) { return symbol.kind == kind; });
    return row == symbols.end() ? "" : row->spelling;
}

}  // namespace script

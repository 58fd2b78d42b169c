// SPDX-License-Identifier: MIT
#include "platform/script/TokenStream.h"

#include <algorithm>
#include <utility>

namespace script {
namespace {

std::string quoted(std::string_view text) { return "“" + std::string(text) + "”"; }

/// The second text is in lower case.
bool equalIgnoringCase(std::string_view text, std::string_view lowered) {
    return text.size() == lowered.size() &&
           std::equal(text.begin(), text.end(), lowered.begin(), [](char c, char other) {
               return (c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c) == other;
           });
}

bool isCurlyQuote(std::string_view text) {
    return text == "“" || text == "”" || text == "‘" || text == "’" || text == "„";
}

}  // namespace

bool TokenStream::namesBlock(Word word) {
    return word == Word::tell || word == Word::repeat || word == Word::ifWord || word == Word::tryWord ||
           word == Word::error || word == Word::considering || word == Word::ignoring ||
           word == Word::timeout || word == Word::usingWord;
}

TokenStream::TokenStream(std::string_view source) : m_source(source), m_lexer(source) {
    m_current = m_lexer.next();
    m_ahead = m_lexer.next();
    refuseFault();
}

std::uint32_t TokenStream::offsetOf(const Token& token) const {
    return static_cast<std::uint32_t>(token.text.data() - m_source.data());
}

void TokenStream::advance() {
    if (failed()) return;
    m_current = m_ahead;
    m_ahead = m_lexer.next();
    refuseFault();
}

Token TokenStream::peek(int count) const {
    if (count == 0) return m_current;
    if (count == 1 || failed()) return m_ahead;
    Lexer lexer = m_lexer;
    Token token = lexer.next();
    for (int i = 2; i < count; ++i) token = lexer.next();
    return token;
}

bool TokenStream::isAtTerm(std::string_view words, int from) const {
    for (int i = from; !words.empty(); ++i) {
        const std::size_t end = std::min(words.find(' '), words.size());
        const Token token = peek(i);
        if (!token.is(TokenKind::identifier) || !equalIgnoringCase(token.text, words.substr(0, end)))
            return false;
        words.remove_prefix(std::min(end + 1, words.size()));
    }
    return true;
}

bool TokenStream::acceptTerm(std::string_view words) {
    if (!isAtTerm(words)) return false;
    for (auto count = std::count(words.begin(), words.end(), ' '); count >= 0; --count) advance();
    return true;
}

bool TokenStream::accept(TokenKind kind) {
    if (!isAt(kind)) return false;
    advance();
    return true;
}

bool TokenStream::accept(Word word) {
    if (!isAt(word)) return false;
    advance();
    return true;
}

bool TokenStream::accept(Word first, Word second) {
    if (!isAt(first, second)) return false;
    advance();
    advance();
    return true;
}

void TokenStream::skipFiller() {
    while (accept(Word::the)) {
    }
}

void TokenStream::expected(std::string_view what) {
    fail(errornumber::syntax, "Expected " + std::string(what) + " but found " + describeCurrent() + ".");
}

void TokenStream::fail(int number, std::string message, std::size_t offset) {
    if (failed()) return;
    m_error = ScriptError{number, std::move(message), locate(m_source, offset)};
    m_current = Token{TokenKind::endOfScript, Word::none, m_source.substr(m_source.size())};
    m_ahead = m_current;
}

/// Tokens that are wrong wherever they stand.
void TokenStream::refuseFault() {
    if (isAt(TokenKind::openText)) {
        fail(errornumber::syntax, "Expected “\"” but found end of script.");
    } else if (isAt(TokenKind::openComment)) {
        fail(errornumber::syntax, "Expected “*)” but found end of script.");
    } else if (isAt(TokenKind::rawCode)) {
        fail(errornumber::syntax, "Raw codes («…») are not supported.");
    } else if (isAt(TokenKind::strayContinuation)) {
        fail(errornumber::syntax, "Expected end of line after “¬”.");
    }
}

std::string TokenStream::describe(const Token& token, const Token& ahead) const {
    switch (token.kind) {
        case TokenKind::endOfScript:
            return "end of script";
        case TokenKind::endOfLine:
            return "end of line";
        case TokenKind::identifier:
            return describeWord(token, ahead);
        case TokenKind::number:
            return "number";
        case TokenKind::text:
            return quoted("\"");
        case TokenKind::unknown:
            if (!isCurlyQuote(token.text)) return "unknown token";
            return "unknown token " + std::string(token.text) + " (text stands between straight quotes)";
        default:
            return quoted(token.text);
    }
}

std::string TokenStream::describeWord(const Token& token, const Token& ahead) const {
    const Word word = token.word;
    if (word == Word::none || !means(word) || kindOf(word) == WordKind::special) return "identifier";
    if (word == Word::end && namesBlock(ahead.word)) {
        return quoted("end " + std::string(spellingOf(ahead.word)));
    }
    return quoted(spellingOf(word));
}

void TokenStream::refuseTarget(std::uint32_t offset) {
    Lexer lexer(m_source.substr(offset));
    const Token token = lexer.next();
    fail(errornumber::syntax, "Expected variable name but found " + describe(token, lexer.next()) + ".",
         offset);
}

Nesting::Nesting(TokenStream& tokens) : m_tokens(tokens) {
    if (++m_tokens.m_depth <= maxDepth) return;
    m_tokens.fail(errornumber::syntax,
                  "Expected at most " + std::to_string(maxDepth) + " levels of nesting but found more.");
}

}  // namespace script

// SPDX-License-Identifier: MIT
#include "platform/script/TokenStream.h"

#include <utility>

namespace script {
namespace {

std::string quoted(std::string_view text) { return "“" + std::string(text) + "”"; }

/// The words that may stand behind `end`.
bool namesBlock(Word word) {
    return word == Word::tell || word == Word::repeat || word == Word::ifWord || word == Word::tryWord ||
           word == Word::error || word == Word::considering || word == Word::ignoring ||
           word == Word::timeout || word == Word::usingWord;
}

bool isCurlyQuote(std::string_view text) {
    return text == "“" || text == "”" || text == "‘" || text == "’" || text == "„";
}

}  // namespace

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

std::string TokenStream::describeCurrent() const {
    switch (m_current.kind) {
        case TokenKind::endOfScript:
            return "end of script";
        case TokenKind::endOfLine:
            return "end of line";
        case TokenKind::identifier:
            return describeWord();
        case TokenKind::number:
            return "number";
        case TokenKind::text:
            return quoted("\"");
        case TokenKind::unknown:
            if (!isCurlyQuote(m_current.text)) return "unknown token";
            return "unknown token " + std::string(m_current.text) + " (text stands between straight quotes)";
        default:
            return quoted(m_current.text);
    }
}

std::string TokenStream::describeWord() const {
    const Word word = m_current.word;
    if (word == Word::none || !means(word) || kindOf(word) == WordKind::special) return "identifier";
    if (word == Word::end && namesBlock(m_ahead.word)) {
        return quoted("end " + std::string(spellingOf(m_ahead.word)));
    }
    return quoted(spellingOf(word));
}

Nesting::Nesting(TokenStream& tokens) : m_tokens(tokens) {
    if (++m_tokens.m_depth <= maxDepth) return;
    m_tokens.fail(errornumber::syntax,
                  "Expected at most " + std::to_string(maxDepth) + " levels of nesting but found more.");
}

}  // namespace script

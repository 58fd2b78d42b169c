// SPDX-License-Identifier: MIT
#include "platform/script/source/TokenStream.h"

#include <algorithm>
#include <utility>

#include "platform/Sentence.h"
#include "platform/Utf8.h"
#include "platform/script/source/Wording.h"

namespace script {
namespace {

/// Whether editors show nothing of the sign: a blank of another width, a mark of direction, or NUL. Other
/// control characters are shown, as ^[ is.
bool isUnseen(char32_t sign) {
    return sign == 0 || sign == 0xAD || (sign >= 0x2000 && sign <= 0x200F) ||
           (sign >= 0x2028 && sign <= 0x202F) || (sign >= 0x205F && sign <= 0x206F) || sign == 0x3000 ||
           sign == 0xFEFF;
}

Sentence describeUnknown(std::string_view text) {
    const std::optional<std::uint32_t> sign = firstCharacter(text).code;
    if (!sign || !isUnseen(*sign)) return part::unknownToken();
    return sentence("ScriptErrors", "unknown token %1").arg(codePointName(*sign));
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
    m_window[m_count++] = m_lexer.next();
    m_window[m_count++] = m_lexer.next();
    refuseFault();
}

std::uint32_t TokenStream::offsetOf(const Token& token) const {
    return static_cast<std::uint32_t>(token.text.data() - m_source.data());
}

void TokenStream::advance() {
    if (failed()) return;
    m_first = (m_first + 1) % windowSize;
    if (--m_count < 2) m_window[(m_first + m_count++) % windowSize] = m_lexer.next();
    if (current().kind >= TokenKind::firstFault) refuseFault();
}

void TokenStream::advance(std::size_t count) {
    for (; count > 0; --count) advance();
}

void TokenStream::readAhead(std::size_t count) const {
    while (m_count <= count) m_window[(m_first + m_count++) % windowSize] = m_lexer.next();
}

/// No further than the words are found: what stands behind them may not be a token.
bool TokenStream::isAtWords(const Phrase& words, std::size_t from) const {
    for (std::size_t i = 0; i < words.wordCount(); ++i) {
        if (!words.hasWord(i, peek(from + i))) return false;
    }
    return true;
}

bool TokenStream::acceptPhrase(const Phrase& words) { return isAtPhrase(words) && skip(words.wordCount()); }

void TokenStream::expected(Sentence what) {
    fail(errornumber::syntax, expectedButFound(std::move(what), describeCurrent()));
}

bool TokenStream::expect(Word word) {
    if (accept(word)) return true;
    expected(quoted(spellingOf(word)));
    return false;
}

bool TokenStream::expect(TokenKind sign) {
    if (accept(sign)) return true;
    expected(quoted(spellingOf(sign)));
    return false;
}

bool TokenStream::expect(const Phrase& words) {
    if (acceptPhrase(words)) return true;
    expected(quoted(words.spelling()));
    return false;
}

bool TokenStream::expectListEnd(TokenKind bracket) {
    if (accept(bracket)) return true;
    expected(alternatives({spellingOf(TokenKind::comma), spellingOf(bracket)}));
    return false;
}

void TokenStream::expectLineEnd() {
    if (!isAtLineEnd()) expected(part::endOfLine());
}

void TokenStream::refuseTarget(Sentence found, std::uint32_t offset) {
    fail(errornumber::syntax, expectedButFound(part::variableName(), std::move(found)), offset);
}

void TokenStream::fail(int number, Sentence message, std::size_t offset) {
    if (failed()) return;
    m_failedInDictionary = m_knowsDictionary;
    m_error = ScriptError{number, std::move(message), locate(m_source, offset)};
    m_window.fill(Token{TokenKind::endOfScript, Word::none, 0, m_source.substr(m_source.size())});
    m_count = windowSize;
}

/// Tokens that are wrong wherever they stand.
void TokenStream::refuseFault() {
    if (isAt(TokenKind::openText)) {
        fail(errornumber::syntax, expectedButFound(quoted("\""), part::endOfScript()));
    } else if (isAt(TokenKind::openComment)) {
        fail(errornumber::syntax, expectedButFound(quoted("*)"), part::endOfScript()));
    } else if (isAt(TokenKind::rawCode)) {
        fail(errornumber::syntax, sentence("ScriptErrors", "Raw codes («…») are not supported."));
    } else if (isAt(TokenKind::strayContinuation)) {
        fail(errornumber::syntax, sentence("ScriptErrors", "Expected end of line after “¬”."));
    }
}

Sentence TokenStream::describe(const Token& token, const Token& ahead) const {
    switch (token.kind) {
        case TokenKind::endOfScript:
            return part::endOfScript();
        case TokenKind::endOfLine:
            return part::endOfLine();
        case TokenKind::identifier:
            return describeWord(token, ahead);
        case TokenKind::number:
            return part::number();
        case TokenKind::text:
            return quoted("\"");
        case TokenKind::unknown:
            if (!isCurlyQuote(token.text)) return describeUnknown(token.text);
            return sentence("ScriptErrors", "unknown token %1 (text stands between straight quotes)")
                .arg(token.text);
        default:
            return quoted(token.text);
    }
}

Sentence TokenStream::describeWord(const Token& token, const Token& ahead) const {
    const Word word = token.word;
    if (word == Word::none || !means(word) || kindOf(word) == WordKind::special) return part::identifier();
    if (word == Word::end && namesBlock(ahead.word)) {
        return script::quoted("end " + std::string(spellingOf(ahead.word)));
    }
    return quoted(spellingOf(word));
}

Sentence TokenStream::describeAt(std::uint32_t offset) const {
    Lexer lexer(m_source.substr(offset));
    const Token token = lexer.next();
    return describe(token, lexer.next());
}

}  // namespace script

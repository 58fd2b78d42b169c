// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/script/source/Lexer.h"
#include "platform/script/source/Phrase.h"
#include "platform/script/source/ScriptError.h"

namespace script {

/// The parser's view of a script: the current token, the one after it, and the first error.
///
/// An error ends the stream: from then on every token is the end of the script, so that whoever reads on
/// finds nothing to read and comes back, and later complaints are not heard.
class TokenStream {
  public:
    explicit TokenStream(std::string_view source);

    const Token& current() const { return m_window[m_first]; }
    const Token& ahead() const { return m_window[(m_first + 1) % windowSize]; }
    /// The token so many behind the current one, at most maxAhead.
    const Token& peek(std::size_t count) const {
        if (m_count <= count) readAhead(count);
        return m_window[(m_first + count) % windowSize];
    }
    std::uint32_t offset() const { return offsetOf(current()); }
    std::uint32_t offsetOf(const Token& token) const;

    bool isAt(TokenKind kind) const { return current().is(kind); }
    /// Whether the current token is that word in a meaning that it has here.
    bool isAt(Word word) const { return current().is(word) && means(word); }
    /// Whether the current two tokens are these two words.
    bool isAt(Word first, Word second) const { return isAt(first) && ahead().is(second) && means(second); }
    /// Whether the tokens from the one so many behind the current one on are these words.
    bool isAtPhrase(const Phrase& words, std::size_t from = 0) const {
        return peek(from).hash == words.firstHash() && isAtWords(words, from);
    }
    /// Whether the first of the words stands here, whatever follows.
    bool isAtFirstWordOf(const Phrase& words) const { return words.hasWord(0, current()); }
    bool isAtLineEnd() const { return isAt(TokenKind::endOfLine) || isAt(TokenKind::endOfScript); }

    void advance();
    void advance(std::size_t count);
    bool accept(TokenKind kind) { return isAt(kind) && skip(1); }
    bool accept(Word word) { return isAt(word) && skip(1); }
    bool accept(Word first, Word second) { return isAt(first, second) && skip(2); }
    bool acceptPhrase(const Phrase& words);
    /// `the` means nothing and may stand before any noun, also more than once.
    void skipFiller() {
        while (accept(Word::the)) {
        }
    }

    /// What an error says of the current token: "number", "“end tell”".
    Sentence describe() const { return describeCurrent(); }
    /// Whether the word may stand behind `end`.
    static bool namesBlock(Word word);

    /// Fails with "Expected WHAT but found ...".
    void expected(Sentence what);
    /// Fails unless it stands here, and moves behind it.
    bool expect(Word word);
    bool expect(TokenKind sign);
    bool expect(const Phrase& words);
    /// The bracket, behind items with commas between them.
    bool expectListEnd(TokenKind bracket);
    void expectLineEnd();
    /// Fails with "Expected variable name but found FOUND.".
    void refuseTarget(Sentence found, std::uint32_t offset);
    void fail(int number, Sentence message) { fail(number, std::move(message), offset()); }
    void fail(int number, Sentence message, std::size_t offset);
    /// What an error says of the token at an offset, which lies behind.
    Sentence describeAt(std::uint32_t offset) const;
    bool failed() const { return m_error.has_value(); }
    const std::optional<ScriptError>& error() const { return m_error; }
    /// Whether the dictionary was in force where the error is.
    bool failedInDictionary() const { return m_failedInDictionary; }

    /// Whether the dictionary of System Events is in force, as the parsers' scopes say.
    bool knowsDictionary() const { return m_knowsDictionary; }
    void setKnowsDictionary(bool knows) { m_knowsDictionary = knows; }

    /// Whether the word is taken as the language's own here, not as a name.
    bool means(Word word) const { return kindOf(word) != WordKind::dictionary || m_knowsDictionary; }

  private:
    static constexpr std::size_t maxAhead = Phrase::maxWords;
    static constexpr std::size_t windowSize = maxAhead + 1;

    bool skip(std::size_t count) {
        advance(count);
        return true;
    }
    /// So that the window holds the token so many behind the current one.
    void readAhead(std::size_t count) const;
    bool isAtWords(const Phrase& words, std::size_t from) const;
    Sentence describeCurrent() const { return describe(current(), ahead()); }
    Sentence describe(const Token& token, const Token& ahead) const;
    Sentence describeWord(const Token& token, const Token& ahead) const;
    void refuseFault();

    std::string_view m_source;
    /// Tokens further ahead are read when somebody looks at them, which is no change of the stream.
    mutable Lexer m_lexer;
    /// A ring: m_count tokens from m_first on, at least the current one and the one behind it.
    mutable std::array<Token, windowSize> m_window;
    mutable std::size_t m_count = 0;
    std::size_t m_first = 0;
    std::optional<ScriptError> m_error;
    bool m_knowsDictionary = false;
    bool m_failedInDictionary = false;
};

}  // namespace script

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/script/Lexer.h"
#include "platform/script/ScriptError.h"

namespace script {

/// The parser's view of a script: the current token, the one after it, and the first error.
///
/// An error ends the stream: from then on every token is the end of the script, so that whoever reads on
/// finds nothing to read and comes back, and later complaints are not heard.
class TokenStream {
  public:
    explicit TokenStream(std::string_view source);

    const Token& current() const { return m_current; }
    const Token& ahead() const { return m_ahead; }
    /// The token so many behind the current one.
    Token peek(int count) const;
    std::uint32_t offset() const { return offsetOf(m_current); }
    std::uint32_t offsetOf(const Token& token) const;

    bool isAt(TokenKind kind) const { return m_current.is(kind); }
    /// Whether the current token is that word in a meaning that it has here.
    bool isAt(Word word) const { return m_current.is(word) && means(word); }
    /// Whether the current two tokens are a term of two words.
    bool isAt(Word first, Word second) const { return isAt(first) && m_ahead.is(second) && means(second); }
    /// Whether the tokens from the one so many behind the current one on are these words, in lower case and
    /// with one blank between them.
    bool isAtTerm(std::string_view words, int from = 0) const;
    bool isAtLineEnd() const { return isAt(TokenKind::endOfLine) || isAt(TokenKind::endOfScript); }

    void advance();
    bool accept(TokenKind kind);
    bool accept(Word word);
    bool accept(Word first, Word second);
    bool acceptTerm(std::string_view words);
    /// `the` means nothing and may stand before any noun, also more than once.
    void skipFiller();

    /// What an error says of the current token: "number", "“end tell”".
    std::string describe() const { return describeCurrent(); }
    /// Whether the word may stand behind `end`.
    static bool namesBlock(Word word);

    /// Fails with "Expected WHAT but found ...".
    void expected(std::string_view what);
    void fail(int number, std::string message) { fail(number, std::move(message), offset()); }
    void fail(int number, std::string message, std::size_t offset);
    /// Fails because what begins at the offset, which lies behind, cannot be set.
    void refuseTarget(std::uint32_t offset);
    bool failed() const { return m_error.has_value(); }
    const std::optional<ScriptError>& error() const { return m_error; }

    /// Whether the dictionary of System Events is in force.
    bool knowsTerms() const { return m_knowsTerms; }
    void setKnowsTerms(bool knows) { m_knowsTerms = knows; }

    /// Whether the word is taken as the language's own here, not as a name.
    bool means(Word word) const { return kindOf(word) != WordKind::term || m_knowsTerms; }

  private:
    friend class Nesting;

    std::string describeCurrent() const { return describe(m_current, m_ahead); }
    std::string describe(const Token& token, const Token& ahead) const;
    std::string describeWord(const Token& token, const Token& ahead) const;
    void refuseFault();

    std::string_view m_source;
    Lexer m_lexer;
    Token m_current;
    Token m_ahead;
    std::optional<ScriptError> m_error;
    bool m_knowsTerms = false;
    int m_depth = 0;
};

/// One level of nesting for its lifetime. The parser descends by recursion, so its depth is bounded: a script
/// cannot overflow the stack.
class Nesting {
  public:
    static constexpr int maxDepth = 200;

    /// Fails the stream at the bound.
    explicit Nesting(TokenStream& tokens);
    ~Nesting() { --m_tokens.m_depth; }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;

  private:
    TokenStream& m_tokens;
};

}  // namespace script

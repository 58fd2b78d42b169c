// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "platform/script/source/Token.h"

namespace script {

/// Cuts a script into tokens, one at a time.
///
/// The source is valid UTF-8 and outlives the lexer and its tokens. Blanks (space, tab, no-break space),
/// comments (`--` and `#` to the end of the line, nested `(* *)`) and continuations (`¬` with its line end)
/// separate tokens and give none. CR, LF and CR LF are one line end each. What cannot be read is a token too;
/// the lexer never fails, and the tokens after the last one are all `endOfScript`.
class Lexer {
  public:
    explicit Lexer(std::string_view source);

    Token next();

  private:
    char at(std::size_t position) const { return position < m_source.size() ? m_source[position] : '\0'; }
    std::string_view rest() const { return m_source.substr(m_position); }
    bool startsWith(std::string_view prefix) const {
        return m_source.compare(m_position, prefix.size(), prefix) == 0;
    }
    Token take(TokenKind kind, std::size_t length);
    Token takeWord(std::size_t length, std::uint32_t hash);

    std::optional<Token> skipGap();
    bool skipBlank();
    void skipLine();
    bool skipBlockComment();
    bool skipLineEnd();
    bool skipContinuation();

    Token word();
    Token barredName();
    Token number();
    Token text();
    Token symbol();

    std::string_view m_source;
    std::size_t m_position = 0;
};

/// How a sign is written; empty for tokens of all other kinds.
std::string_view spellingOf(TokenKind kind);

}  // namespace script

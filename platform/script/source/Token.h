// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/script/source/Word.h"

namespace script {

enum class TokenKind : std::uint8_t {
    endOfScript,
    endOfLine,
    identifier,  ///< a word of the language or a name; a name in bars has the word `none`
    number,
    text,  ///< with its quotes and escapes
    leftParenthesis,
    rightParenthesis,
    leftBrace,
    rightBrace,
    comma,
    colon,
    possessive,  ///< 's
    ampersand,
    plus,
    minus,
    star,
    slash,  ///< also ÷
    caret,
    equal,
    notEqual,
    less,
    lessEqual,
    greater,
    greaterEqual,
    unknown,            ///< one character that means nothing here
    rawCode,            ///< « or »
    openText,           ///< a text that never ends
    openComment,        ///< a block comment that never ends
    strayContinuation,  ///< ¬ with something after it on its line

    firstFault = rawCode,  ///< it and those behind it are wrong wherever they stand
};

/// A token is a view of the source, which must outlive it.
struct Token {
    TokenKind kind = TokenKind::endOfScript;
    /// Set for identifiers that the language knows.
    Word word = Word::none;
    /// The SpellingHash of an identifier; 0 for all others.
    std::uint32_t hash = 0;
    /// The token as it stands; an empty view at its place for the end of the script.
    std::string_view text;

    bool is(TokenKind wanted) const { return kind == wanted; }
    bool is(Word wanted) const { return word == wanted; }
};

}  // namespace script

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "platform/script/source/Location.h"
#include "platform/script/source/Token.h"

namespace script {

/// The line in which an error stands, as its tokens; of long lines as many as people write. Words come in
/// lower case, and are empty where there is none.
class ErrorLine {
  public:
    /// The source outlives the object.
    ErrorLine(std::string_view source, const Location& place);

    std::string_view text() const { return m_text; }
    /// Of `tell ... to` in one line, that of the statement behind it.
    std::string first() const { return wordAt(m_begin); }
    std::string second() const { return wordAt(m_begin + 1); }
    /// Where the error is, and before and behind it.
    std::string here() const { return wordAt(m_at); }
    std::string before() const { return m_at == 0 ? "" : wordAt(m_at - 1); }
    std::string behind() const { return wordAt(m_at + 1); }
    /// Whether the error is right behind the first word.
    bool isBehindFirst() const { return m_at == m_begin + 1; }
    /// From the first word on, by its number from 0; that of the statement behind `tell ... to`.
    std::string word(std::size_t number) const { return wordAt(m_begin + number); }
    /// All from that word on, up to one of these words, without what is around.
    std::string_view wordsFrom(std::size_t number, std::initializer_list<std::string_view> ends) const;
    /// The letters, digits and accents that stand together where the error is; empty if it is at none.
    std::string_view letters() const;
    /// What stands before these.
    std::string_view beforeLetters() const;
    /// Whether the line itself tells System Events to do what is wrong.
    bool isTold() const { return m_begin > 0 && wordAt(m_begin - 2) == "\"system events\""; }
    /// Whether the token stands against a name.
    bool isIndex() const { return stands(TokenKind::identifier); }
    /// Whether it is a word or number that stands against a text.
    bool standsAgainstText() const;

  private:
    /// Longer lines are nobody's first.
    static constexpr std::size_t most = 200;

    std::string wordAt(std::size_t number) const;
    bool stands(TokenKind against) const;

    std::string_view m_text;
    std::vector<Token> m_tokens;
    std::size_t m_at = 0;
    std::size_t m_begin = 0;  ///< of the statement
};

}  // namespace script

// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/script/source/Token.h"
#include "platform/script/source/Word.h"

namespace script {

/// One word or several in a row, made when compiling so that tokens are compared with it at once.
class Phrase {
  public:
    static constexpr std::size_t maxWords = 7;

    /// In lower case, one blank between words, at most 255 bytes. Not explicit: a parser asks for words as
    /// they are spelled.
    // NOLINTNEXTLINE(google-explicit-constructor)
    consteval Phrase(const char* spelling) : m_spelling(spelling) {
        std::size_t begin = 0;
        while (begin <= m_spelling.size()) {
            const std::size_t end = std::min(m_spelling.find(' ', begin), m_spelling.size());
            m_words.at(m_count) = {static_cast<std::uint8_t>(begin), static_cast<std::uint8_t>(end - begin),
                                   SpellingHash(m_spelling.substr(begin, end - begin)).value()};
            ++m_count;
            begin = end + 1;
        }
    }

    constexpr std::string_view spelling() const { return m_spelling; }
    constexpr std::size_t wordCount() const { return m_count; }
    constexpr std::string_view word(std::size_t index) const {
        return m_spelling.substr(m_words[index].begin, m_words[index].length);
    }
    /// Behind the first word and its blank.
    constexpr std::string_view rest() const {
        return m_spelling.substr(std::min<std::size_t>(m_words[0].length + 1U, m_spelling.size()));
    }
    constexpr std::uint32_t firstHash() const { return m_words[0].hash; }

    constexpr bool hasWord(std::size_t index, const Token& token) const {
        return token.hash == m_words[index].hash && token.is(TokenKind::identifier) &&
               equalIgnoringCase(token.text, word(index));
    }

  private:
    struct Part {
        std::uint8_t begin = 0;
        std::uint8_t length = 0;
        std::uint32_t hash = 0;
    };

    std::string_view m_spelling;
    std::array<Part, maxWords> m_words{};
    std::size_t m_count = 0;
};

}  // namespace script

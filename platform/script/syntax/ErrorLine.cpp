// SPDX-License-Identifier: MIT
#include "platform/script/syntax/ErrorLine.h"

#include <algorithm>

#include "platform/Utf8.h"
#include "platform/script/source/Lexer.h"
#include "platform/script/source/Name.h"
#include "platform/script/values/Characters.h"

namespace script {

ErrorLine::ErrorLine(std::string_view source, const Location& place) {
    const std::string_view text = lineOf(source, place.line);
    const std::size_t column = text.size() - std::min(offsetOf(text, {1, place.column}), text.size());
    Lexer lexer(text);
    for (Token token = lexer.next(); !token.is(TokenKind::endOfScript); token = lexer.next()) {
        const auto left = static_cast<std::size_t>(text.data() + text.size() - token.text.data());
        if (left > column) m_at = m_tokens.size() + 1;
        m_tokens.push_back(token);
        const bool isTold =
            m_begin == 0 && left > column && equalIgnoringCase(token.text, "to") && wordAt(0) == "tell";
        if (isTold) m_begin = m_tokens.size();
        if (m_tokens.size() == most) break;
    }
    if (!text.empty()) m_text = text;
}

std::string ErrorLine::wordAt(std::size_t number) const {
    return number < m_tokens.size() ? asciiLowered(m_tokens[number].text) : "";
}

bool ErrorLine::stands(TokenKind against) const {
    if (m_at == 0 || m_at >= m_tokens.size()) return false;
    const Token& former = m_tokens[m_at - 1];
    return former.is(against) && former.text.data() + former.text.size() == m_tokens[m_at].text.data();
}

bool ErrorLine::standsAgainstText() const {
    if (!stands(TokenKind::text)) return false;
    const Token& token = m_tokens[m_at];
    return token.is(TokenKind::identifier) || token.is(TokenKind::number);
}

std::string_view ErrorLine::wordsFrom(std::size_t number,
                                      std::initializer_list<std::string_view> ends) const {
    number += m_begin;
    if (number >= m_tokens.size()) return "";
    const auto isEnd = [&](const std::string& word) {
        return std::find(ends.begin(), ends.end(), word) != ends.end();
    };
    std::size_t last = number;
    while (last + 1 < m_tokens.size() && !isEnd(wordAt(last + 1))) ++last;
    const char* begin = m_tokens[number].text.data();
    const auto length = m_tokens[last].text.data() + m_tokens[last].text.size() - begin;
    return {begin, static_cast<std::size_t>(length)};
}

std::string_view ErrorLine::letters() const {
    if (m_at >= m_tokens.size()) return "";
    const auto at = static_cast<std::size_t>(m_tokens[m_at].text.data() - m_text.data());
    std::size_t begin = at;
    std::size_t end = at;
    for (std::size_t next = at; next < m_text.size() && isWordCharacter(takeCharacter(m_text, next));)
        end = next;
    for (std::size_t former = at; former > 0;) {
        do --former;
        while (former > 0 && isUtf8Continuation(m_text[former]));
        std::size_t behind = former;
        if (!isWordCharacter(takeCharacter(m_text, behind))) break;
        begin = former;
    }
    return m_text.substr(begin, end == at ? 0 : end - begin);
}

std::string_view ErrorLine::beforeLetters() const {
    const std::string_view found = letters();
    return found.empty() ? "" : m_text.substr(0, static_cast<std::size_t>(found.data() - m_text.data()));
}

}  // namespace script

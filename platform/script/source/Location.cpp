// SPDX-License-Identifier: MIT
#include "platform/script/source/Location.h"

#include <algorithm>

#include "platform/Utf8.h"
#include "platform/script/source/Trivia.h"

namespace script {

Location Locator::at(std::size_t offset) {
    if (offset < m_position) *this = Locator(m_source);
    const std::size_t end = std::min(offset, m_source.size());
    std::uint32_t column = m_place.column;
    for (; m_position < end; ++m_position) {
        const char c = m_source[m_position];
        if (c == '\n' || (c == '\r' && !isPair(m_position))) {
            ++m_place.line;
            column = 1;
        } else if (!isUtf8Continuation(c)) {
            ++column;
        }
    }
    m_place.column = column;
    return m_place;
}

/// CR LF ends one line, at its LF.
bool Locator::isPair(std::size_t position) const {
    return position + 1 < m_source.size() && m_source[position + 1] == '\n';
}

std::size_t offsetOf(std::string_view source, const Location& place) {
    const std::string_view line = lineOf(source, place.line);
    std::size_t length = 0;
    for (std::uint32_t column = 1; column < place.column && length < line.size(); ++column) {
        do ++length;
        while (length < line.size() && isUtf8Continuation(line[length]));
    }
    return static_cast<std::size_t>(line.data() - source.data()) + length;
}

std::string_view lineOf(std::string_view source, std::uint32_t number) {
    for (std::uint32_t line = 1; line < number && !source.empty(); ++line) {
        source.remove_prefix(lineLength(source));
        source.remove_prefix(std::min(lineEndLength(source), source.size()));
    }
    return source.substr(0, lineLength(source));
}

}  // namespace script

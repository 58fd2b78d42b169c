// SPDX-License-Identifier: MIT
#include "platform/script/Location.h"

#include <algorithm>

#include "platform/Utf8.h"

namespace script {

Location Locator::at(std::size_t offset) {
    if (offset < m_position) *this = Locator(m_source);
    const std::size_t end = std::min(offset, m_source.size());
    while (m_position < end) step();
    return m_place;
}

void Locator::step() {
    const char c = m_source[m_position++];
    const bool carriageReturn = c == '\r';
    const bool pair = carriageReturn && m_position < m_source.size() && m_source[m_position] == '\n';
    if (c == '\n' || (carriageReturn && !pair)) {
        ++m_place.line;
        m_place.column = 1;
    } else if (!isUtf8Continuation(c)) {
        ++m_place.column;
    }
}

}  // namespace script

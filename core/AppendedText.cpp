// SPDX-License-Identifier: MIT
#include "core/AppendedText.h"

#include <algorithm>

namespace {

constexpr std::size_t firstRoom = 4096;
/// Bytes carried over for each one appended. With two, all of a text that was half its room when the next one
/// was taken is there when its own is full.
constexpr std::size_t carried = 2;

}  // namespace

void AppendedText::append(std::string_view part) {
    if (m_text.size() + part.size() > m_text.capacity()) {
        m_next.append(m_text, m_next.size());
        m_text.swap(m_next);
        m_next = {};
    }
    m_text += part;
    if (2 * m_text.size() <= m_text.capacity()) return;
    if (m_next.empty()) m_next.reserve(std::max(firstRoom, 2 * m_text.capacity()));
    m_next.append(m_text, m_next.size(), carried * part.size());
}

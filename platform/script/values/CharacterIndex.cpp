// SPDX-License-Identifier: MIT
#include "platform/script/values/CharacterIndex.h"

#include "platform/Utf8.h"

namespace script {

void CharacterIndex::extend(std::string_view text) {
    for (; m_read < text.size(); ++m_read) {
        if (isUtf8Continuation(text[m_read])) continue;
        if (m_count % between == 0) m_marks.push_back(static_cast<std::uint32_t>(m_read));
        ++m_count;
    }
}

std::size_t CharacterIndex::offsetOf(std::string_view text, std::size_t character) const {
    if (character >= m_count) return text.size();
    std::size_t offset = m_marks[character / between];
    for (std::size_t left = character % between; left > 0; --left) {
        do ++offset;
        while (offset < text.size() && isUtf8Continuation(text[offset]));
    }
    return offset;
}

}  // namespace script

// SPDX-License-Identifier: MIT
#include "platform/Sentence.h"

#include <atomic>

namespace {

std::atomic<SentenceTranslation>& spoken() {
    static std::atomic<SentenceTranslation> translation = nullptr;
    return translation;
}

}  // namespace

// In one pass: an argument may hold what looks like a placeholder.
std::string Sentence::text() const {
    const SentenceTranslation translation = spoken();
    const std::string words = translation == nullptr ? m_english : translation(m_context, m_english);
    std::string text;
    for (std::size_t at = 0; at < words.size(); ++at) {
        const bool isPlaceholder =
            words[at] == '%' && at + 1 < words.size() && words[at + 1] >= '1' && words[at + 1] <= '9';
        const std::size_t place = isPlaceholder ? static_cast<std::size_t>(words[at + 1] - '1') : 0;
        if (isPlaceholder && place < m_arguments.size()) {
            text += m_arguments[place];
            ++at;
        } else {
            text += words[at];
        }
    }
    return text;
}

void translateSentencesBy(SentenceTranslation translation) { spoken() = translation; }

// SPDX-License-Identifier: MIT
#include "platform/Sentence.h"

#include <atomic>
#include <ostream>

namespace {

std::atomic<SentenceTranslation>& spoken() {
    static std::atomic<SentenceTranslation> translation = nullptr;
    return translation;
}

}  // namespace

// Not in the header: each error has two of them, and each place that makes one would have all of this.
Sentence::Sentence(const Sentence& other) = default;
Sentence::Sentence(Sentence&& other) noexcept = default;
Sentence& Sentence::operator=(const Sentence& other) = default;
Sentence& Sentence::operator=(Sentence&& other) noexcept = default;
Sentence::~Sentence() = default;

Sentence& Sentence::arg(Sentence part) & {
    m_parts.push_back(std::move(part));
    return *this;
}

std::string Sentence::text() const { return saidBy(spoken()); }

std::string Sentence::english() const { return saidBy(nullptr); }

// In one pass: a part may hold what looks like a placeholder.
std::string Sentence::saidBy(SentenceTranslation translation) const {
    if (m_english == nullptr) return m_words;
    const std::string translated = translation == nullptr ? "" : translation(m_context, m_english);
    const std::string_view words = translation == nullptr ? std::string_view(m_english) : translated;
    std::string said;
    said.reserve(2 * words.size());
    std::size_t begin = 0;
    for (std::size_t at = words.find('%'); at != std::string_view::npos; at = words.find('%', at + 1)) {
        const bool hasDigit = at + 1 < words.size() && words[at + 1] >= '1' && words[at + 1] <= '9';
        const std::size_t place = hasDigit ? static_cast<std::size_t>(words[at + 1] - '1') : 0;
        if (!hasDigit || place >= m_parts.size()) continue;
        said.append(words, begin, at - begin);
        const Sentence& part = m_parts[place];
        if (part.m_english == nullptr) {
            said += part.m_words;
        } else {
            said += part.saidBy(translation);
        }
        begin = at + 2;
    }
    return said.append(words, begin);
}

std::ostream& operator<<(std::ostream& out, const Sentence& sentence) { return out << sentence.text(); }

void translateSentencesBy(SentenceTranslation translation) { spoken() = translation; }

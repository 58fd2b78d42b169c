// SPDX-License-Identifier: MIT
#include "platform/script/source/Misspelling.h"

#include <algorithm>

#include "platform/EditDistance.h"
#include "platform/script/source/Name.h"

namespace script {
namespace {

constexpr std::size_t longest = 40;
constexpr std::size_t shortWord = 3;
constexpr std::size_t longWord = 8;

std::string sorted(std::string word) {
    std::sort(word.begin(), word.end());
    return word;
}

}  // namespace

Misspelling::Misspelling(std::string_view word, std::size_t shortest) : m_word(asciiLowered(word)) {
    if (word.empty() || word.size() < shortest || word.size() > longest) return;
    m_forgiven = word.size() < longWord ? 1 : 2;
}

void Misspelling::compare(std::string_view candidate) {
    if (m_isWord || candidate.size() > longest) return;
    const std::size_t more =
        std::max(candidate.size(), m_word.size()) - std::min(candidate.size(), m_word.size());
    if (more > m_forgiven) return;
    const std::string other = asciiLowered(candidate);
    if (other == m_word) {
        m_isWord = true;
        m_meant.clear();
        return;
    }
    if (m_forgiven == 0 || (m_word.size() <= shortWord && !isShortSlip(other))) return;
    const std::size_t apart = editDistance(m_word, other);
    if (apart > m_forgiven) return;
    m_forgiven = apart - 1;
    m_meant = candidate;
}

bool Misspelling::isShortSlip(const std::string& candidate) const {
    if (candidate.empty()) return false;
    return m_word.front() == candidate.front() || sorted(m_word) == sorted(candidate);
}

}  // namespace script

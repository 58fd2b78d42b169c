// SPDX-License-Identifier: MIT
#include "platform/script/source/Misspelling.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

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

/// Row by row; a swap looks back to the row before the last.
std::size_t editDistance(std::string_view left, std::string_view right) {
    std::vector<std::size_t> before(right.size() + 1);
    std::vector<std::size_t> last(right.size() + 1);
    std::vector<std::size_t> row(right.size() + 1);
    std::iota(row.begin(), row.end(), 0U);
    for (std::size_t i = 1; i <= left.size(); ++i) {
        std::swap(before, last);
        std::swap(last, row);
        row[0] = i;
        for (std::size_t j = 1; j <= right.size(); ++j) {
            const std::size_t changed = last[j - 1] + (left[i - 1] == right[j - 1] ? 0 : 1);
            row[j] = std::min({changed, last[j] + 1, row[j - 1] + 1});
            const bool areSwapped =
                i > 1 && j > 1 && left[i - 1] == right[j - 2] && left[i - 2] == right[j - 1];
            if (areSwapped) row[j] = std::min(row[j], before[j - 2] + 1);
        }
    }
    return row.back();
}

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

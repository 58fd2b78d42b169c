// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace script {

/// A word that may be another one with a slip of the pen. Short words are near to one another by chance: up
/// to three letters one slip is forgiven if the first letter is right or the letters are the same, up to
/// seven letters one slip, and beyond that two. Case does not matter.
class Misspelling {
  public:
    /// Words with fewer letters than `shortest`, and very long ones, are near to none.
    Misspelling(std::string_view word, std::size_t shortest);

    /// Asks whether this is what was meant; of several the nearest is, and of those the first.
    void compare(std::string_view candidate);
    /// Empty if nothing was near enough, or if the word itself was among the candidates.
    const std::string& meant() const { return m_meant; }

  private:
    bool isShortSlip(const std::string& candidate) const;

    std::string m_word;          ///< in lower case
    std::size_t m_forgiven = 0;  ///< slips that are forgiven; fewer once something near is found
    bool m_isWord = false;
    std::string m_meant;
};

}  // namespace script

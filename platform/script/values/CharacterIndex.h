// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace script {

/// Where the characters of a text lie: the place of every 64th one, so that any other is near.
class CharacterIndex {
  public:
    /// Reads on to the end of the text, at most 2^32 - 1 bytes of UTF-8. Of a text that was read before, or
    /// of one with more behind it, only the rest is read.
    void extend(std::string_view text);

    std::size_t count() const { return m_count; }
    /// The byte at which a character begins, from 0; the text's size for the one behind the last.
    std::size_t offsetOf(std::string_view text, std::size_t character) const;

  private:
    static constexpr std::size_t between = 64;

    std::vector<std::uint32_t> m_marks;
    std::size_t m_count = 0;
    std::size_t m_read = 0;
};

}  // namespace script

// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/script/source/Word.h"

namespace script {

/// Finds rows of a table by their member `spelling`, in any case of letters. Made when compiling; the table
/// outlives it.
template <typename Row, std::size_t count>
class SpellingIndex {
  public:
    constexpr explicit SpellingIndex(const std::array<Row, count>& rows) : m_rows(rows) {
        for (std::size_t row = 0; row < count; ++row) {
            std::size_t slot = slotOf(SpellingHash(rows[row].spelling).value());
            while (m_slots[slot] != 0) slot = (slot + 1) % slotCount;
            m_slots[slot] = static_cast<std::uint8_t>(row + 1);
        }
    }

    /// Null if there is none. The hash is that of the text.
    constexpr const Row* find(std::string_view text, std::uint32_t hash) const {
        for (std::size_t slot = slotOf(hash); m_slots[slot] != 0; slot = (slot + 1) % slotCount) {
            const Row& row = m_rows[m_slots[slot] - std::size_t{1}];
            if (equalIgnoringCase(text, row.spelling)) return &row;
        }
        return nullptr;
    }

  private:
    static_assert(count < 256, "a slot holds the row in one byte");

    /// A crowded table is slow to search.
    static constexpr std::size_t slotCount = 1024;
    static constexpr std::size_t slotOf(std::uint32_t hash) { return hash % slotCount; }

    const std::array<Row, count>& m_rows;
    /// The row and one more; 0 is empty.
    std::array<std::uint8_t, slotCount> m_slots{};
};

}  // namespace script

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace script {

/// What may be considered or ignored where texts are compared. Bits.
namespace attribute {
inline constexpr std::uint8_t letterCase = 1;
inline constexpr std::uint8_t diacriticals = 2;
inline constexpr std::uint8_t hyphens = 4;
inline constexpr std::uint8_t numericStrings = 8;
inline constexpr std::uint8_t punctuation = 16;
inline constexpr std::uint8_t whiteSpace = 32;
}  // namespace attribute

/// How texts are compared and cut at a moment of a run.
struct TextRules {
    static constexpr std::uint8_t usual =
        attribute::diacriticals | attribute::hyphens | attribute::punctuation | attribute::whiteSpace;

    std::uint8_t considered = usual;
    /// Where text items end, and with the first of which lists are joined.
    std::vector<std::string> delimiters;

    bool considers(std::uint8_t one) const { return (considered & one) != 0; }
    std::string_view joint() const { return delimiters.empty() ? "" : std::string_view(delimiters.front()); }
};

/// A stretch of a text, in bytes.
struct Stretch {
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// Where the characters of a text lie.
std::vector<Stretch> charactersOf(std::string_view text);

/// Below 0, 0 or above 0. What is ignored does not count.
int compareTexts(std::string_view left, std::string_view right, const TextRules& rules);

/// The first place of `part` at or behind the byte `from`; takes time in proportion to the text.
std::optional<Stretch> findText(std::string_view text, std::string_view part, std::size_t from,
                                const TextRules& rules);

bool textStartsWith(std::string_view text, std::string_view part, const TextRules& rules);
bool textEndsWith(std::string_view text, std::string_view part, const TextRules& rules);

/// Where the text items of a text lie.
std::vector<Stretch> textItemsOf(std::string_view text, const TextRules& rules);

}  // namespace script

// SPDX-License-Identifier: MIT
#include "platform/script/values/Characters.h"

#include <glib.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace script {
namespace {

/// Letters with a stroke, which Unicode does not take apart, and the dotless i.
struct Stroked {
    char32_t letter;
    char32_t base;
};

constexpr auto strokedLetters = std::to_array<Stroked>({
    {U'Ø', U'O'},
    {U'ø', U'o'},
    {U'Đ', U'D'},
    {U'đ', U'd'},
    {U'ı', U'i'},
    {U'Ł', U'L'},
    {U'ł', U'l'},
});

bool isBetween(char32_t character, char32_t first, char32_t last) {
    return character >= first && character <= last;
}

bool isAccent(char32_t character) { return isBetween(character, 0x300, 0x36F); }

}  // namespace

char32_t lowered(char32_t character) {
    if (character < 0x80) return isBetween(character, U'A', U'Z') ? character + 32 : character;
    // Its lower case are two characters, i and a dot above; the i alone is another letter.
    if (character == U'İ') return character;
    return g_unichar_tolower(character);
}

/// Hangul and the signs of Indian scripts are made of characters, too, but not of letters with accents.
char32_t withoutAccents(char32_t character) {
    if (character < 0xC0) return character;
    if (isAccent(character)) return 0;
    for (const Stroked& row : strokedLetters) {
        if (row.letter == character) return row.base;
    }
    std::array<gunichar, G_UNICHAR_MAX_DECOMPOSITION_LENGTH> parts{};
    const std::size_t count = g_unichar_fully_decompose(character, FALSE, parts.data(), parts.size());
    const bool isAccented = count > 1 && g_unichar_isalpha(parts[0]) &&
                            std::all_of(parts.begin() + 1, parts.begin() + count, isAccent);
    return isAccented ? parts[0] : character;
}

bool isHyphen(char32_t character) { return character == U'-' || isBetween(character, 0x2010, 0x2015); }

bool isPunctuation(char32_t character) {
    constexpr std::u32string_view ascii = U".,?:;!\\'\"`";
    if (character < 0x80) return ascii.find(character) != std::u32string_view::npos;
    return isBetween(character, 0x2016, 0x2027) || isBetween(character, 0x3001, 0x3003) ||
           character == 0xA1 || character == 0xBF || character == 0xAB || character == 0xBB;
}

bool isWhiteSpace(char32_t character) {
    return character == U' ' || isBetween(character, 9, 13) || character == 0xA0 || character == 0x85 ||
           isBetween(character, 0x2000, 0x200A) || isBetween(character, 0x2028, 0x2029) ||
           character == 0x202F || character == 0x205F || character == 0x3000;
}

bool isWordCharacter(char32_t character) {
    if (character < 0x80) {
        return isBetween(lowered(character), U'a', U'z') || isBetween(character, U'0', U'9') ||
               character == U'_';
    }
    if (isWhiteSpace(character) || isHyphen(character) || isPunctuation(character)) return false;
    const bool sign = character < 0xC0 && character != 0xAA && character != 0xB5 && character != 0xBA;
    return !sign && character != 0xD7 && character != 0xF7 && !isBetween(character, 0x2030, 0x206F) &&
           !isBetween(character, 0x3004, 0x3020);
}

}  // namespace script

// SPDX-License-Identifier: MIT
#include "platform/x11/TextPlan.h"

#include <xkbcommon/xkbcommon.h>

#include <array>
#include <cstdio>
#include <string>

#include "platform/Utf8.h"

namespace {

constexpr char32_t carriageReturn = U'\r';

bool isSurrogate(char32_t character) { return character >= 0xD800 && character <= 0xDFFF; }

std::string utf8(char32_t character) {
    std::array<char, 8> bytes{};
    const auto symbol = xkb_utf32_to_keysym(character);
    const int size = xkb_keysym_to_utf8(symbol, bytes.data(), bytes.size());
    return size > 1 ? std::string(bytes.data()) : std::string();
}

}  // namespace

Result<std::vector<char32_t>> charactersOf(std::string_view text) {
    std::vector<char32_t> characters;
    characters.reserve(text.size());
    bool isAfterReturn = false;
    for (std::size_t position = 0; position < text.size();) {
        const Utf8Character next = firstCharacter(text.substr(position));
        if (!next.code) {
            return Error{"The text to type is not UTF-8 at byte " + std::to_string(position + 1) + ".",
                         "Save the script as UTF-8."};
        }
        position += next.length;
        const char32_t character = *next.code;
        const bool isSecondHalf = isAfterReturn && character == U'\n';
        isAfterReturn = character == carriageReturn;
        if (!isSecondHalf) characters.push_back(character == U'\n' ? carriageReturn : character);
    }
    return characters;
}

std::string nameOf(char32_t character) {
    std::array<char, 16> code{};
    std::snprintf(code.data(), code.size(), "U+%04X", static_cast<unsigned>(character));
    const std::string shown = character < 0x20 || character == 0x7F ? std::string() : utf8(character);
    if (shown.empty()) return code.data();
    return "\"" + shown + "\" (" + code.data() + ")";
}

bool isBindable(char32_t character) {
    const bool isControl = character < 0x20 || (character >= 0x7F && character < 0xA0);
    return !isControl && !isSurrogate(character) && xkb_utf32_to_keysym(character) != XKB_KEY_NoSymbol;
}

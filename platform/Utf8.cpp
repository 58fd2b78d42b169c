// SPDX-License-Identifier: MIT
#include "platform/Utf8.h"

#include <array>
#include <cstdio>
#include <cstring>

namespace {

struct Form {
    std::uint8_t mask;
    std::uint8_t mark;
    std::uint32_t least;
};

/// By length less one.
constexpr Form forms[] = {{0x80, 0x00, 0}, {0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, 0x10000}};

constexpr Utf8Character none{std::nullopt, 1};

Utf8Character decoded(std::string_view text, const Form& form, std::size_t length) {
    if (text.size() < length) return none;
    std::uint32_t code = static_cast<std::uint8_t>(text.front()) & static_cast<std::uint8_t>(~form.mask);
    for (const char next : text.substr(1, length - 1)) {
        if (!isUtf8Continuation(next)) return none;
        code = code << 6U | (static_cast<std::uint8_t>(next) & 0x3FU);
    }
    const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
    if (code < form.least || code > 0x10FFFF || isSurrogate) return none;
    return {code, length};
}

/// Texts are nearly all ASCII: eight bytes at a time.
std::size_t skipAscii(std::string_view bytes, std::size_t position) {
    std::uint64_t eight = 0;
    while (position + sizeof eight <= bytes.size()) {
        std::memcpy(&eight, bytes.data() + position, sizeof eight);
        if ((eight & 0x8080808080808080U) != 0) break;
        position += sizeof eight;
    }
    return position;
}

}  // namespace

Utf8Character firstCharacter(std::string_view text) {
    const auto first = static_cast<std::uint8_t>(text.front());
    std::size_t length = 0;
    for (const Form& form : forms) {
        ++length;
        if ((first & form.mask) == form.mark) return decoded(text, form, length);
    }
    return none;
}

char32_t takeCharacter(std::string_view text, std::size_t& position) {
    const auto first = static_cast<unsigned char>(text[position++]);
    if (first < 0x80U) return first;
    int more = 1;
    if (first >= 0xE0U) more = first >= 0xF0U ? 3 : 2;
    char32_t character = first & (0x3FU >> static_cast<unsigned>(more));
    for (; more > 0 && position < text.size(); --more) {
        character = (character << 6U) | (static_cast<unsigned char>(text[position++]) & 0x3FU);
    }
    return character;
}

std::optional<std::size_t> invalidUtf8(std::string_view bytes) {
    std::size_t position = skipAscii(bytes, 0);
    while (position < bytes.size()) {
        const Utf8Character character = firstCharacter(bytes.substr(position));
        if (!character.code) return position;
        position += character.length;
        if (character.length == 1) position = skipAscii(bytes, position);
    }
    return std::nullopt;
}

std::string codePointName(std::uint32_t code) {
    std::array<char, 16> name{};
    std::snprintf(name.data(), name.size(), "U+%04X", code);
    return name.data();
}

void appendUtf8(std::string& text, char32_t code) {
    const auto part = [&](unsigned shift) { return static_cast<char>(0x80U | ((code >> shift) & 0x3FU)); };
    if (code < 0x80) {
        text += static_cast<char>(code);
    } else if (code < 0x800) {
        text += {static_cast<char>(0xC0U | (code >> 6U)), part(0)};
    } else if (code < 0x10000) {
        text += {static_cast<char>(0xE0U | (code >> 12U)), part(6), part(0)};
    } else {
        text += {static_cast<char>(0xF0U | (code >> 18U)), part(12), part(6), part(0)};
    }
}

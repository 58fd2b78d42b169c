// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// A character of a text in UTF-8.
struct Utf8Character {
    /// Empty for a byte that begins no character there; the length is 1 then.
    std::optional<std::uint32_t> code;
    /// In bytes, 1 to 4.
    std::size_t length = 1;

    friend bool operator==(const Utf8Character&, const Utf8Character&) = default;
};

/// Whether the byte is the second or a later one of a character.
constexpr bool isUtf8Continuation(char byte) { return (static_cast<std::uint8_t>(byte) & 0xC0U) == 0x80U; }

/// Whether the code is a control character's: U+0000 to U+001F, U+007F to U+009F.
constexpr bool isControlCode(std::uint32_t code) { return code < 0x20 || (code >= 0x7F && code < 0xA0); }

/// The first character of a text that is not empty. Overlong forms, surrogates and codes above 0x10FFFF are
/// no characters (RFC 3629).
Utf8Character firstCharacter(std::string_view text);

/// The code of the character that begins at a byte of a text that is known to be UTF-8, and moves behind it.
/// Quicker, because nothing is checked but the end of the text.
char32_t takeCharacter(std::string_view text, std::size_t& position);

/// The offset of the first byte that begins no character; empty if all is UTF-8.
std::optional<std::size_t> invalidUtf8(std::string_view bytes);

/// "U+200B": at least four digits.
std::string codePointName(std::uint32_t code);

/// Appends a character by its code, at most 0x10FFFF.
void appendUtf8(std::string& text, char32_t code);

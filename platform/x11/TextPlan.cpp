// SPDX-License-Identifier: MIT
#include "platform/x11/TextPlan.h"

#include <xkbcommon/xkbcommon.h>

#include <array>
#include <cstdio>
#include <optional>
#include <string>

namespace {

constexpr char32_t carriageReturn = U'\r';
constexpr char32_t lastCharacter = 0x10FFFF;

bool isSurrogate(char32_t character) { return character >= 0xD800 && character <= 0xDFFF; }

/// Takes characters off the front of a text.
class Utf8Reader {
  public:
    explicit Utf8Reader(std::string_view text) : m_text(text) {}

    bool isAtEnd() const { return m_at == m_text.size(); }
    std::size_t position() const { return m_at; }

    /// Empty where the next bytes are no character; the shortest form is asked for.
    std::optional<char32_t> take() {
        const auto first = static_cast<unsigned char>(m_text[m_at]);
        if (first < 0x80) {
            ++m_at;
            return first;
        }
        const std::size_t size = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
        if (first < 0xC2 || first > 0xF4 || m_text.size() - m_at < size) return std::nullopt;
        char32_t character = first & (0xFFU >> (size + 1));
        for (std::size_t next = 1; next < size; ++next) {
            const auto byte = static_cast<unsigned char>(m_text[m_at + next]);
            if ((byte & 0xC0U) != 0x80U) return std::nullopt;
            character = character << 6U | (byte & 0x3FU);
        }
        constexpr std::array<char32_t, 5> least = {0, 0, 0x80, 0x800, 0x10000};
        if (character < least[size] || character > lastCharacter || isSurrogate(character)) {
            return std::nullopt;
        }
        m_at += size;
        return character;
    }

  private:
    std::string_view m_text;
    std::size_t m_at = 0;
};

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
    Utf8Reader reader(text);
    bool isAfterReturn = false;
    while (!reader.isAtEnd()) {
        const auto character = reader.take();
        if (!character) {
            return Error{
                "The text to type is not UTF-8 at byte " + std::to_string(reader.position() + 1) + ".",
                "Save the script as UTF-8."};
        }
        const bool isSecondHalf = isAfterReturn && *character == U'\n';
        isAfterReturn = *character == carriageReturn;
        if (!isSecondHalf) characters.push_back(*character == U'\n' ? carriageReturn : *character);
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

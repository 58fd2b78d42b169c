// SPDX-License-Identifier: MIT
#include "platform/AsciiText.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <string>

#include "platform/Utf8.h"

namespace {

std::string nameOf(char byte) {
    std::array<char, 8> name{};
    std::snprintf(name.data(), name.size(), "0x%02X", static_cast<std::uint8_t>(byte));
    return name.data();
}

std::string nameOf(std::string_view rest, const Utf8Character& character) {
    if (!character.code) return "the byte " + nameOf(rest.front());
    std::string name = "the character ";
    // Controls (U+0080 to U+009F) would be invisible.
    if (*character.code >= 0xA0) name.append("\"").append(rest.substr(0, character.length)).append("\" ");
    return name + "(" + codePointName(*character.code) + ")";
}

}  // namespace

Result<> checkAscii(std::string_view text) {
    const auto isAscii = [](char character) { return static_cast<std::uint8_t>(character) < 0x80; };
    const auto length = std::find_if_not(text.begin(), text.end(), isAscii) - text.begin();
    const std::string_view before = text.substr(0, static_cast<std::size_t>(length));
    if (before.size() == text.size()) return {};
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    const auto column = before.size() - (before.rfind('\n') + 1) + 1;
    const std::string_view rest = text.substr(before.size());
    return Error{"Line " + std::to_string(line) + " has " + nameOf(rest, firstCharacter(rest)) +
                     " at place " + std::to_string(column) + ", and a macro file can hold ASCII only.",
                 "Replace the character in the macro."};
}

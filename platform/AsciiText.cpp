// SPDX-License-Identifier: MIT
#include "platform/AsciiText.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <string>

#include "platform/Sentence.h"
#include "platform/Utf8.h"

namespace {

std::string codeOf(char byte) {
    std::array<char, 8> name{};
    std::snprintf(name.data(), name.size(), "0x%02X", static_cast<std::uint8_t>(byte));
    return name.data();
}

/// What `rest` begins with is no ASCII.
Sentence refusal(const std::string& line, const std::string& place, std::string_view rest) {
    const Utf8Character character = firstCharacter(rest);
    if (!character.code) {
        //: %1 and %3 are numbers, %2 is a code: 0xE9
        return sentence("Files", "Line %1 has the byte %2 at place %3, and a macro file can hold ASCII only.")
            .arg(line)
            .arg(codeOf(rest.front()))
            .arg(place);
    }
    const std::string code = codePointName(*character.code);
    // Controls (U+0080 to U+009F) would be invisible.
    if (*character.code < 0xA0) {
        //: %1 and %3 are numbers, %2 is the code of a character that cannot be shown: U+0085
        return sentence("Files",
                        "Line %1 has the character (%2) at place %3, and a macro file can hold ASCII only.")
            .arg(line)
            .arg(code)
            .arg(place);
    }
    //: %1 and %4 are numbers, %2 is a character, %3 its code: U+00E9
    return sentence(
               "Files",
               "Line %1 has the character \"%2\" (%3) at place %4, and a macro file can hold ASCII only.")
        .arg(line)
        .arg(rest.substr(0, character.length))
        .arg(code)
        .arg(place);
}

}  // namespace

Result<> checkAscii(std::string_view text) {
    const auto isAscii = [](char character) { return static_cast<std::uint8_t>(character) < 0x80; };
    const auto length = std::find_if_not(text.begin(), text.end(), isAscii) - text.begin();
    const std::string_view before = text.substr(0, static_cast<std::size_t>(length));
    if (before.size() == text.size()) return {};
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    const auto column = before.size() - (before.rfind('\n') + 1) + 1;
    return Error{refusal(std::to_string(line), std::to_string(column), text.substr(before.size())),
                 sentence("Files", "Replace the character in the macro.")};
}

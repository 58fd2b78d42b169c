// SPDX-License-Identifier: MIT
#include "platform/run/TextPlan.h"

#include <algorithm>
#include <string>

#include "platform/Sentence.h"
#include "platform/Utf8.h"

namespace {

constexpr char32_t carriageReturn = U'\r';

}  // namespace

Result<std::vector<char32_t>> charactersOf(std::string_view text) {
    std::vector<char32_t> characters;
    characters.reserve(text.size());
    bool isAfterReturn = false;
    for (std::size_t position = 0; position < text.size();) {
        const Utf8Character next = firstCharacter(text.substr(position));
        if (!next.code) {
            //: %1 is a number.
            return Error{sentence("Keys", "The text to type is not UTF-8 at byte %1.")
                             .arg(std::to_string(position + 1)),
                         sentence("Keys", "Save the script as UTF-8.")};
        }
        position += next.length;
        const char32_t character = *next.code;
        const bool isSecondHalf = isAfterReturn && character == U'\n';
        isAfterReturn = character == carriageReturn;
        if (!isSecondHalf) characters.push_back(character == U'\n' ? carriageReturn : character);
    }
    return characters;
}

std::vector<char32_t> charactersOfAll(std::span<const std::string> texts) {
    std::vector<char32_t> all;
    for (const std::string& text : texts) {
        const auto characters = charactersOf(text);
        if (characters) all.insert(all.end(), characters.value().begin(), characters.value().end());
    }
    return all;
}

std::string beginningOf(std::span<const char32_t> characters) {
    constexpr std::size_t most = 20;
    std::string shown;
    for (const char32_t character : characters.first(std::min(most, characters.size()))) {
        appendUtf8(shown, character == carriageReturn ? U' ' : character);
    }
    //: The beginning of a text that is longer, in quotation marks.
    if (characters.size() > most) return sentence("Keys", "\"%1...\"").arg(shown);
    //: A text in quotation marks.
    return sentence("Keys", "\"%1\"").arg(shown);
}

std::string nameOf(char32_t character) {
    const std::string code = codePointName(character);
    const bool isControl = character < 0x20 || character == 0x7F;
    if (isControl || character > 0x10FFFF) return code;
    std::string shown;
    appendUtf8(shown, character);
    //: %1 is a character, %2 its code: U+00E9
    return sentence("Keys", "\"%1\" (%2)").arg(shown).arg(code);
}

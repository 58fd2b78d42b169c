// SPDX-License-Identifier: MIT
#include "platform/MailUrl.h"

#include "platform/Utf8.h"

namespace {

constexpr std::string_view unescaped =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_.!~*'();/?:@&=+$,";
constexpr std::string_view hexDigits = "0123456789ABCDEF";

std::uint8_t latin1(const Utf8Character& character) {
    return character.code && *character.code <= 0xFF ? static_cast<std::uint8_t>(*character.code) : '?';
}

std::string escaped(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const Utf8Character character = firstCharacter(text);
        const std::uint8_t byte = latin1(character);
        if (unescaped.find(static_cast<char>(byte)) != std::string_view::npos) {
            result += static_cast<char>(byte);
        } else {
            result += {'%', hexDigits[byte >> 4U], hexDigits[byte & 0xFU]};
        }
        text.remove_prefix(character.length);
    }
    return result;
}

}  // namespace

std::string mailUrl(std::string_view address, std::string_view subject, std::string_view body) {
    return "mailto:" + escaped(address) + "?subject=" + escaped(subject) + "&body=" + escaped(body);
}

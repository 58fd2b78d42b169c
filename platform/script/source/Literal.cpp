// SPDX-License-Identifier: MIT
#include "platform/script/source/Literal.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace script {
namespace {

constexpr std::string_view blanks = " \t\r\n";

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// Whether the number is below 1, for numbers that no real can hold: they are then far below.
bool isSmall(std::string_view spelled) {
    constexpr std::int64_t saturated = 1000000000;
    const std::size_t mark = std::min(spelled.find_first_of("eE"), spelled.size());
    const std::string_view mantissa = spelled.substr(0, mark);
    std::int64_t exponent = 0;
    if (mark + 1 < spelled.size()) {
        const bool negative = spelled[mark + 1] == '-';
        const char* first = spelled.data() + mark + (isDigit(spelled[mark + 1]) ? 1 : 2);
        const auto result = std::from_chars(first, spelled.data() + spelled.size(), exponent);
        if (result.ec != std::errc()) exponent = saturated;
        if (negative) exponent = -exponent;
    }
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t leading = std::min(mantissa.find_first_not_of("0."), mantissa.size());
    return exponent + static_cast<std::int64_t>(point) - static_cast<std::int64_t>(leading) < 0;
}

std::optional<char> escaped(char c) {
    switch (c) {
        case 'n':
            return '\n';
        case 'r':
            return '\r';
        case 't':
            return '\t';
        case '"':
        case '\\':
            return c;
        default:
            return std::nullopt;
    }
}

}  // namespace

std::optional<double> realOf(std::string_view spelled) {
    double value = 0;
    const char* last = spelled.data() + spelled.size();
    const auto [end, error] = std::from_chars(spelled.data(), last, value);
    if (end != last) return std::nullopt;
    if (error == std::errc::result_out_of_range) {
        return isSmall(spelled) ? std::optional<double>(0) : std::nullopt;
    }
    return error == std::errc() ? std::optional<double>(value) : std::nullopt;
}

std::optional<double> numberInText(std::string_view text) {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return std::nullopt;
    text = text.substr(first, text.find_last_not_of(blanks) - first + 1);
    const bool negative = text.front() == '-';
    if (negative || text.front() == '+') text.remove_prefix(1);
    // What else from_chars would read: "inf", "nan", another sign.
    if (text.empty() || !(isDigit(text.front()) || text.front() == '.')) return std::nullopt;
    const std::optional<double> value = realOf(text);
    if (!value) return std::nullopt;
    return negative ? -*value : *value;
}

bool isPlain(std::string_view spelled) { return spelled.find_first_of("\\\r") == std::string_view::npos; }

Unescaped unescape(std::string_view spelled) {
    Unescaped result;
    result.text.reserve(spelled.size());
    for (std::size_t i = 0; i < spelled.size(); ++i) {
        const char c = spelled[i];
        const char following = i + 1 < spelled.size() ? spelled[i + 1] : '\0';
        if (c == '\\') {
            const std::optional<char> meant = escaped(following);
            if (!meant) {
                result.badEscape = i;
                return result;
            }
            result.text += *meant;
            ++i;
        } else if (c == '\r') {
            result.text += '\n';
            if (following == '\n') ++i;
        } else {
            result.text += c;
        }
    }
    return result;
}

std::string escaped(std::string_view text, char sign) {
    std::string written;
    for (const char c : text) {
        if (c == sign || c == '\\') written += '\\';
        written += c;
    }
    return written;
}

}  // namespace script

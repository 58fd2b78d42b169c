// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace script {

// What stands between tokens and is none. Lengths are in bytes; the text begins where the thing does.

inline constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
inline constexpr std::string_view noBreakSpace = "\xC2\xA0";
inline constexpr std::string_view continuationSign = "¬";

constexpr bool isLineEnd(char c) { return c == '\n' || c == '\r'; }

/// Of the line end: CR LF is one.
constexpr std::size_t lineEndLength(std::string_view text) { return text.starts_with("\r\n") ? 2 : 1; }

/// Up to the line end, or the end of the text.
constexpr std::size_t lineLength(std::string_view text) {
    return static_cast<std::size_t>(std::find_if(text.begin(), text.end(), isLineEnd) - text.begin());
}

/// Whether a comment begins that ends with its line.
constexpr bool beginsLineComment(std::string_view text) {
    return text.starts_with('#') || text.starts_with("--");
}

/// Only `(*` and `*)` count inside; npos if the comment never ends.
constexpr std::size_t blockCommentLength(std::string_view text) {
    std::size_t depth = 0;
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        const bool opens = text[i] == '(' && text[i + 1] == '*';
        const bool closes = text[i] == '*' && text[i + 1] == ')';
        if (!opens && !closes) continue;
        ++i;
        if (opens) ++depth;
        if (closes && --depth == 0) return i + 1;
    }
    return std::string_view::npos;
}

}  // namespace script

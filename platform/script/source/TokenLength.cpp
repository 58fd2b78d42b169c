// SPDX-License-Identifier: MIT
#include "platform/script/source/TokenLength.h"

#include <algorithm>

#include "platform/Utf8.h"
#include "platform/script/source/Lexer.h"
#include "platform/script/source/Trivia.h"

namespace script {

std::uint32_t tokenLength(std::string_view source, const Location& place) {
    const std::string_view rest = source.substr(offsetOf(source, place));
    const std::string_view line = rest.substr(0, lineLength(rest));
    if (line.empty()) return 0;
    const std::string_view token = Lexer(rest).next().text;
    const std::size_t bytes = token.data() == rest.data() ? std::min(token.size(), line.size()) : 1;
    const std::string_view characters = line.substr(0, bytes);
    return static_cast<std::uint32_t>(std::count_if(characters.begin(), characters.end(),
                                                    [](char byte) { return !isUtf8Continuation(byte); }));
}

}  // namespace script

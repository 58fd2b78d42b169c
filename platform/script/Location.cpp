// SPDX-License-Identifier: MIT
#include "platform/script/Location.h"

#include <algorithm>

namespace script {
namespace {

/// Continuation bytes of UTF-8 are no characters of their own.
bool startsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

}  // namespace

Location locate(std::string_view source, std::size_t offset) {
    const std::string_view before = source.substr(0, std::min(offset, source.size()));
    Location place;
    for (std::size_t i = 0; i < before.size(); ++i) {
        const bool carriageReturn = before[i] == '\r';
        const bool pair = carriageReturn && i + 1 < source.size() && source[i + 1] == '\n';
        if (before[i] == '\n' || (carriageReturn && !pair)) {
            ++place.line;
            place.column = 1;
        } else if (startsCharacter(before[i])) {
            ++place.column;
        }
    }
    return place;
}

}  // namespace script

// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string_view>

/// Takes the first part off a text whose parts each end with `end`, the last perhaps without, and gives it
/// back without its end: a line, a field of a list. An empty text has none.
inline std::string_view takePart(std::string_view& rest, char end) {
    const std::string_view part = rest.substr(0, rest.find(end));
    rest.remove_prefix(std::min(part.size() + 1, rest.size()));
    return part;
}

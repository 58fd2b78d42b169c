// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/script/source/Location.h"

namespace script {

/// How many characters the word, text or sign has that begins at a place, on its line; 0 at the end of a
/// line.
std::uint32_t tokenLength(std::string_view source, const Location& place);

}  // namespace script

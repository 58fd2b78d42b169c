// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "platform/Result.h"

/// The characters of a UTF-8 text as they are typed: carriage return, line feed and the two together are one
/// U+000D each. Fails where the text is not UTF-8; the message tells the byte.
Result<std::vector<char32_t>> charactersOf(std::string_view text);

/// How a character is called in a message: "é" (U+00E9).
std::string nameOf(char32_t character);

// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Result.h"

/// The characters of a UTF-8 text as they are typed: carriage return, line feed and the two together are one
/// U+000D each. Fails where the text is not UTF-8; the message tells the byte.
Result<std::vector<char32_t>> charactersOf(std::string_view text);

/// The characters of all texts, one after the other, without those that are not UTF-8.
std::vector<char32_t> charactersOfAll(std::span<const std::string> texts);

/// How a text is called in a message: its first characters in quotation marks, with dots where there are
/// more.
std::string beginningOf(std::span<const char32_t> characters);

/// How a character is called in a message: "é" (U+00E9).
std::string nameOf(char32_t character);

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// The content of a text file as UTF-8 without a byte order mark. A mark decides (UTF-8, UTF-16 of either
/// byte order); else bytes that are valid UTF-8 are that, and all others are MacRoman, in which older editors
/// wrote. Never fails: what is broken in UTF-16 becomes U+FFFD.
std::string decodedText(std::string bytes);

/// The offset of the first byte for which decodedText() takes the bytes for MacRoman; empty where it does
/// not.
std::optional<std::size_t> firstMacRomanByte(std::string_view bytes);

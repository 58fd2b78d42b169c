// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace script {

/// What is printed on a key of a US keyboard, or what it does: "A", "Return", "Keypad 7". Of an extension its
/// number of the kernel: "key 183". Empty for a code that has no key.
std::string keyTitle(std::uint32_t code);

/// All codes that have a key, one a line: code, tab, title.
std::string keyLines();

/// The same as a table of Markdown, three keys in a row.
std::string keyTable();

}  // namespace script

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace script {

/// The offset of the first byte that is no UTF-8 (RFC 3629: no overlong forms, no surrogates); empty if all
/// is.
std::optional<std::size_t> invalidUtf8(std::string_view bytes);

/// The content of a script file as UTF-8 without a byte order mark. A mark decides (UTF-8, UTF-16 of either
/// byte order); else bytes that are valid UTF-8 are that, and all others are MacRoman, in which older editors
/// wrote. Never fails: what is broken in UTF-16 becomes U+FFFD.
std::string decodedScript(std::string bytes);

}  // namespace script

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace script {

// How messages say what all of them say.

/// “text”
std::string quoted(std::string_view text);

/// “a”, “b” or “c”
std::string alternatives(const std::vector<std::string_view>& words);

/// "The NAME KIND is specified more than once." The kind is "parameter", "property" or "handler".
std::string givenTwice(std::string_view name, std::string_view kind);

}  // namespace script

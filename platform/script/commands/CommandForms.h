// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

namespace script {

/// How each command is written, one line of ASCII each, in the order of the manual: "delay [SECONDS]". What
/// stands in capitals, brackets or bars is to be filled in.
std::vector<std::string_view> commandForms();

}  // namespace script

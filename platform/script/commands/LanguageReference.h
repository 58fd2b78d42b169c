// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace script {

/// The reference of the language as Markdown: its statements, values and operators, and what every command
/// tells of itself.
std::string languageReference();

}  // namespace script

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "platform/Result.h"
#include "platform/script/source/ScriptError.h"

namespace script {

/// The script in one layout: a tab for each level, one blank between words, reserved words in lower case, at
/// most one empty line in a row, LF at the end of each line. Comments, texts and joined lines stay as they
/// are, and so does the meaning. A script that cannot be parsed is an error. Formatting twice changes
/// nothing.
Result<std::string, ScriptError> formatted(std::string_view source);

}  // namespace script

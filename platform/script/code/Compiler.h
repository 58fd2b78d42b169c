// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include "platform/Result.h"
#include "platform/ScriptingService.h"
#include "platform/script/code/Program.h"
#include "platform/script/source/ScriptError.h"

namespace script {

/// The largest source that is compiled, in bytes.
inline constexpr std::size_t maxSourceSize = largestScript;

/// Compiles a script in UTF-8. An error is the first one of the script.
Result<Program, ScriptError> compile(std::string source);

}  // namespace script

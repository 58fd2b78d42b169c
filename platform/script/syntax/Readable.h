// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "platform/Result.h"
#include "platform/script/source/ScriptError.h"

namespace script {

/// Whether the source can be read at all: UTF-8, and no longer than a script may be. What is longer is not
/// looked at.
Result<void, ScriptError> checkReadable(std::string_view source);

}  // namespace script

// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "cli/Commands.h"
#include "platform/Result.h"

/// What the words behind a command that takes a script say: options, and a file or lines. Behind `--` a file
/// may begin with a minus.
///
/// Empty if they are not how the command is called. Fails where the command has no such option, and where an
/// option has a value that it cannot have.
Result<std::optional<ScriptInput>> readInput(std::string_view command,
                                             const std::vector<std::string_view>& words);

// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "platform/script/source/ScriptError.h"

namespace script {

/// How a run ended. Cancelled is no error value: nothing in a script can catch it.
enum class RunEnd { finished, failed, cancelled };

struct RunResult {
    RunEnd end = RunEnd::finished;
    /// Set unless the run finished; when cancelled its number is -128.
    std::optional<ScriptError> error;
    /// The value of the last statement as a script would spell it; empty if it has none.
    std::string value;
};

}  // namespace script

// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "platform/PlayOptions.h"
#include "platform/script/code/Program.h"
#include "platform/script/run/MachineServices.h"
#include "platform/script/run/RunResult.h"

namespace script {

/// Who is told of a run while it lasts; empty for nobody.
struct RunListener {
    /// What the run noticed, each thing once for its place.
    std::function<void(const ScriptWarning&)> onWarning = {};
    /// The lines of the script's log.
    std::function<void(const std::string&)> onLog = {};
};

/// Runs a program once.
///
/// The injector is asked for a session before the first stroke or pause; a program without either leaves it
/// alone. The session is gone when the run has ended. The script's pauses are divided by the speed
/// (platform/PlayOptions.h), whoever makes them.
RunResult run(const Program& program, const MachineServices& services, RunListener listener = {},
              double speed = playspeed::usual);

}  // namespace script

// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/script/code/Program.h"
#include "platform/script/run/MachineServices.h"
#include "platform/script/run/RunResult.h"

namespace script {

/// Runs one program once.
///
/// The injector is asked for a session before the first stroke or pause; a program without either leaves it
/// alone. The session is gone when run() returns.
class Machine {
  public:
    using WarningHandler = std::function<void(const ScriptWarning&)>;
    using LogHandler = std::function<void(const std::string&)>;

    /// All of them outlive the machine.
    Machine(const Program& program, const MachineServices& services)
        : m_program(program), m_services(services) {}

    /// Who is told what the run noticed, each thing once for its place.
    void onWarning(WarningHandler handler) { m_warningHandler = std::move(handler); }
    /// Who is told the lines of the script's log.
    void onLog(LogHandler handler) { m_logHandler = std::move(handler); }

    RunResult run();

  private:
    const Program& m_program;
    MachineServices m_services;
    WarningHandler m_warningHandler;
    LogHandler m_logHandler;
};

}  // namespace script

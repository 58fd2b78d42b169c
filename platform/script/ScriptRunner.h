// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/KeyInjector.h"
#include "platform/ScriptingService.h"
#include "platform/script/MachineServices.h"

namespace script {

/// The program's own view of the language: compiles and runs, and reports nothing.
class ScriptRunner : public ScriptingService {
  public:
    /// Keys only: nobody hears the bell or is asked, and the clipboard is a variable. The injector outlives
    /// the runner.
    explicit ScriptRunner(KeyInjector& injector) : m_services{injector, m_silent, m_noDialogs} {}
    /// All of them outlive the runner.
    explicit ScriptRunner(const MachineServices& services) : m_services(services) {}

    void startPlayback() override { m_services.injector.startPlayback(); }
    void run(const std::string& source) override;
    bool isCancelled() override { return m_services.injector.isCancelled(); }

  private:
    SilentDesktop m_silent;
    NoDialogs m_noDialogs;
    MachineServices m_services;
    bool m_running = false;
};

}  // namespace script

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/KeyInjector.h"
#include "platform/ScriptingService.h"

namespace script {

/// The program's own view of the language: compiles and runs, and reports nothing.
class ScriptRunner : public ScriptingService {
  public:
    /// The injector outlives the runner.
    explicit ScriptRunner(KeyInjector& injector) : m_injector(injector) {}

    void startPlayback() override { m_injector.startPlayback(); }
    void run(const std::string& source) override;
    bool isCancelled() override { return m_injector.isCancelled(); }

  private:
    KeyInjector& m_injector;
    bool m_running = false;
};

}  // namespace script

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/KeyInjector.h"
#include "platform/ScriptingService.h"
#include "platform/script/run/MachineServices.h"

namespace script {

/// The program's own view of the language: compiles and runs, and reports nothing.
class ScriptRunner : public ScriptingService {
  public:
    /// Both outlive the runner. Nobody can be asked.
    ScriptRunner(KeyInjector& injector, ScriptDesktop& desktop) : m_injector(injector), m_desktop(desktop) {}

    /// From now on scripts can ask. `dialogs` outlives the last run.
    void askThrough(ScriptDialogs& dialogs) { m_dialogs = &dialogs; }

    void startPlayback() override { m_injector.startPlayback(); }
    void run(const std::string& source) override;
    bool isCancelled() override { return m_injector.isCancelled(); }

  private:
    KeyInjector& m_injector;
    ScriptDesktop& m_desktop;
    NoDialogs m_noDialogs;
    ScriptDialogs* m_dialogs = &m_noDialogs;
    bool m_running = false;
};

}  // namespace script

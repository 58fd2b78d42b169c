// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "platform/KeyInjector.h"
#include "platform/ScriptingService.h"
#include "platform/script/run/MachineServices.h"

namespace script {

/// The program's own view of the language: compiles and runs, and tells only who asks.
class ScriptRunner : public ScriptingService {
  public:
    /// Both outlive the runner. Nobody can be asked.
    ScriptRunner(KeyInjector& injector, ScriptDesktop& desktop) : m_injector(injector), m_desktop(desktop) {}

    /// From now on scripts can ask. `dialogs` outlives the last run.
    void askThrough(ScriptDialogs& dialogs) { m_dialogs = &dialogs; }

    std::optional<ScriptFailure> check(const std::string& source) override;
    void startPlayback() override;
    void runAtSpeed(const std::string& source, double speed) override;
    bool isCancelled() override { return m_injector.isCancelled(); }
    bool hasFailed() const override { return m_failure.has_value(); }
    std::optional<ScriptFailure> takeFailure() override { return std::exchange(m_failure, std::nullopt); }

  private:
    /// Why the run did not do what the text says.
    std::optional<ScriptFailure> runOnce(const std::string& source, double speed);

    KeyInjector& m_injector;
    ScriptDesktop& m_desktop;
    NoDialogs m_noDialogs;
    ScriptDialogs* m_dialogs = &m_noDialogs;
    bool m_running = false;
    std::optional<ScriptFailure> m_failure;
};

}  // namespace script

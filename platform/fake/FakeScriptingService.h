// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Result.h"
#include "platform/ScriptingService.h"
#include "platform/fake/FakeDesktop.h"
#include "platform/fake/Journal.h"

/// Remembers the texts that it is given to run and lets a test act while one runs.
class FakeScriptingService : public ScriptingService {
  public:
    FakeScriptingService(Journal& journal, FakeDesktop& desktop) : m_journal(journal), m_desktop(desktop) {}

    std::optional<ScriptFailure> check(const std::string& source) override;
    void startPlayback() override;
    void runAtSpeed(const std::string& source, double speed) override;
    bool isCancelled() override { return m_desktop.isCancelled(); }
    bool hasFailed() const override { return m_failure.has_value(); }
    std::optional<ScriptFailure> takeFailure() override { return std::exchange(m_failure, std::nullopt); }

    /// All texts that were run, in order, failed ones among them.
    const std::vector<std::string>& runs() const { return m_runs; }
    /// The speed of each of them.
    const std::vector<double>& speeds() const { return m_speeds; }
    int playbacksStarted() const { return m_playbacksStarted; }
    /// Called in the middle of every run: what the user and the script do meanwhile.
    void duringEachRun(std::function<void()> hook) { m_hook = std::move(hook); }
    /// The next script that is run has this error in its second line, where it ends.
    void failNextCall(const Error& error) { m_nextError = error; }
    /// That text does not compile from now on.
    void refuse(const std::string& source, const ScriptFailure& failure) { m_refused[source] = failure; }

  private:
    Journal& m_journal;
    FakeDesktop& m_desktop;
    std::vector<std::string> m_runs;
    std::vector<double> m_speeds;
    int m_playbacksStarted = 0;
    std::function<void()> m_hook;
    std::optional<Error> m_nextError;
    std::map<std::string, ScriptFailure> m_refused;
    std::optional<ScriptFailure> m_failure;
};

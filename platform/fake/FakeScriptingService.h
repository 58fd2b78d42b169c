// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/Result.h"
#include "platform/ScriptingService.h"
#include "platform/fake/FakeDesktop.h"
#include "platform/fake/Journal.h"

/// Remembers the texts that it is given to run and lets a test act while one runs.
class FakeScriptingService : public ScriptingService {
  public:
    FakeScriptingService(Journal& journal, FakeDesktop& desktop) : m_journal(journal), m_desktop(desktop) {}

    void startPlayback() override;
    void run(const std::string& source) override;
    bool isCancelled() override { return m_desktop.isCancelled(); }

    /// All texts that were run, in order, failed ones among them.
    const std::vector<std::string>& runs() const { return m_runs; }
    int playbacksStarted() const { return m_playbacksStarted; }
    /// Called in the middle of every run: what the user and the script do meanwhile.
    void duringEachRun(std::function<void()> hook) { m_hook = std::move(hook); }
    /// The next script has this error: it ends at once and says nothing.
    void failNextCall(const Error& error) { m_nextError = error; }

  private:
    Journal& m_journal;
    FakeDesktop& m_desktop;
    std::vector<std::string> m_runs;
    int m_playbacksStarted = 0;
    std::function<void()> m_hook;
    std::optional<Error> m_nextError;
};

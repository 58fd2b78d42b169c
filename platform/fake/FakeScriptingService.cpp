// SPDX-License-Identifier: MIT
#include "platform/fake/FakeScriptingService.h"

std::optional<ScriptFailure> FakeScriptingService::check(const std::string& source) {
    const auto refused = m_refused.find(source);
    return refused == m_refused.end() ? std::nullopt : std::optional(refused->second);
}

void FakeScriptingService::startPlayback() {
    m_journal.note("startPlayback");
    m_failure.reset();
    ++m_playbacksStarted;
    m_desktop.startPlayback();
}

void FakeScriptingService::runAtSpeed(const std::string& source, double speed) {
    if (m_desktop.isRunning()) return;
    m_journal.note("run", source);
    m_runs.push_back(source);
    m_speeds.push_back(speed);
    std::optional<ScriptFailure> failure = check(source);
    if (!failure && m_nextError) failure = ScriptFailure{true, 2, *std::exchange(m_nextError, std::nullopt)};
    if (failure) {
        if (!m_failure) m_failure = std::move(failure);
        return;
    }
    const FakeDesktop::Run run(m_desktop);
    if (m_hook) m_hook();
}

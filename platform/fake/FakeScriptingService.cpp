// SPDX-License-Identifier: MIT
#include "platform/fake/FakeScriptingService.h"

void FakeScriptingService::startPlayback() {
    m_journal.note("startPlayback");
    ++m_playbacksStarted;
    m_desktop.startPlayback();
}

void FakeScriptingService::run(const std::string& source) {
    if (m_desktop.isRunning()) return;
    m_journal.note("run", source);
    m_runs.push_back(source);
    if (m_nextError) {
        m_nextError.reset();
        return;
    }
    const FakeDesktop::Run run(m_desktop);
    if (m_hook) m_hook();
}

// SPDX-License-Identifier: MIT
#include "platform/fake/FakeUpdateService.h"

#include "platform/Version.h"

bool FakeUpdateService::isNewerThan(std::string_view runningVersion) {
    m_journal.note("isNewerThan", runningVersion);
    m_questions.emplace_back(runningVersion);
    return !m_nextError.take() && isNewerVersion(m_newest, runningVersion);
}

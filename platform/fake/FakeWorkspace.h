// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/Workspace.h"
#include "platform/fake/Journal.h"
#include "platform/fake/NextError.h"

/// Remembers what it was given to open.
class FakeWorkspace : public Workspace {
  public:
    explicit FakeWorkspace(Journal& journal) : m_journal(journal) {}

    Result<> openUrl(std::string_view url) override;

    /// In order, without those that failed.
    const std::vector<std::string>& openedUrls() const { return m_openedUrls; }
    void failNextCall(const Error& error) { m_nextError.set(error); }

  private:
    Result<> open(std::vector<std::string>& opened, std::string_view text);

    Journal& m_journal;
    std::vector<std::string> m_openedUrls;
    NextError m_nextError;
};

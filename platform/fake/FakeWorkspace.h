// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/Workspace.h"
#include "platform/fake/NextError.h"

/// Remembers what it was given to open.
class FakeWorkspace : public Workspace {
  public:
    Result<> openUrl(std::string_view url) override { return open(m_openedUrls, url); }
    Result<> openFile(std::string_view path) override { return open(m_openedFiles, path); }

    /// In order, without those that failed.
    const std::vector<std::string>& openedUrls() const { return m_openedUrls; }
    const std::vector<std::string>& openedFiles() const { return m_openedFiles; }
    void failNextCall(const Error& error) { m_nextError.set(error); }

  private:
    Result<> open(std::vector<std::string>& opened, std::string_view text);

    std::vector<std::string> m_openedUrls;
    std::vector<std::string> m_openedFiles;
    NextError m_nextError;
};

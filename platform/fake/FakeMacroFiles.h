// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

#include "platform/MacroFiles.h"
#include "platform/fake/Journal.h"
#include "platform/fake/NextError.h"

/// Files in memory. Their texts are UTF-8.
class FakeMacroFiles : public MacroFiles {
  public:
    static constexpr const char* usualFolder = "/home/user/.local/share/keyrill";

    explicit FakeMacroFiles(Journal& journal) : m_journal(journal) {}

    std::string folder() const override { return usualFolder; }
    std::string prepareFolder() override;
    Result<std::string> read(const std::string& path) const override;
    Result<> write(const std::string& path, std::string_view text) override;

    /// A file that the user has put there.
    void put(const std::string& path, const std::string& text) { m_files[path] = text; }
    /// The user gives a file another name, or all in a folder: from which name to which each.
    std::map<std::string, std::string> rename(const std::string& from, const std::string& to);
    /// The user removes a file, or a folder with all that it has.
    void remove(const std::string& path);
    /// By path.
    const std::map<std::string, std::string>& files() const { return m_files; }
    /// How often the folder was prepared.
    int preparations() const { return m_preparations; }
    /// The next read or write fails; the file stays as it was.
    void failNextCall(const Error& error) { m_nextError.set(error); }

  private:
    Journal& m_journal;
    std::map<std::string, std::string> m_files;
    int m_preparations = 0;
    mutable NextError m_nextError;
};

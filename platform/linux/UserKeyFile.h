// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "platform/Result.h"
#include "platform/linux/KeyFile.h"
#include "platform/linux/WholeFile.h"

/// A key file of the user's in a folder of the program's own. One that cannot be read is renamed to
/// NAME.bad-TIME (UTC), a link by itself without what it leads to.
///
/// Modes: 0600 for the file, 0700 for a folder that has to be made.
class UserKeyFile {
  public:
    /// What errors call the file and its folder.
    using Kind = WholeFile::Kind;
    enum class Damaged { isPutAside, stays };

    /// `tellFault` is called when a file has been put aside.
    UserKeyFile(std::string path, Kind kind, std::function<void(const Error&)> tellFault);

    const std::string& path() const { return m_path; }

    /// Any key file; one that is not there cannot be read.
    static Result<KeyFile> readAny(const std::string& path, Kind kind);

    /// As it is now, empty where there is none and after it had to be put aside. Fails where it cannot even
    /// be put aside, or has to stay.
    Result<KeyFile> read(Damaged damaged) const;
    /// Makes the folder if need be.
    Result<> write(const KeyFile& content) const;
    /// Removes what a killed run left beside it.
    void removeLeftovers() const { m_file.removeLeftovers(); }

  private:
    Result<> putAside(const Error& fault) const;

    std::string m_path;
    Kind m_kind;
    std::function<void(const Error&)> m_tellFault;
    WholeFile m_file;
};

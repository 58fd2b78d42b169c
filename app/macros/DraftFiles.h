// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

#include "platform/Result.h"

/// What was not saved of macros, in a folder of its own: it outlives a crash and a log-out. For the user
/// alone (0600), each written whole or not at all; nothing is made before there is something to keep.
class DraftFiles {
  public:
    /// `folder` is absolute and need not exist.
    explicit DraftFiles(std::string folder) : m_folder(std::move(folder)) {}

    /// By the paths of the macros. What cannot be read is left out.
    std::map<std::string, std::string> all() const;
    /// `path` has no line end.
    Result<> keep(const std::string& path, const std::string& text) const;
    void forget(const std::string& path) const;

  private:
    std::string fileOf(const std::string& path) const;

    std::string m_folder;
};

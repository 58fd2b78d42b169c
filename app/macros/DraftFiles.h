// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "platform/Result.h"

/// A text of a macro that is not saved.
struct Draft {
    /// UTF-8.
    std::string text = {};
    /// fingerprintOf() the saved text that it was made from; empty if that is not known.
    std::string base = {};

    friend bool operator==(const Draft&, const Draft&) = default;
};

/// 64 signs by which a text is known again: the SHA-256 standard's, in hexadecimal.
std::string fingerprintOf(std::string_view text);

/// What was not saved of macros, in a folder of its own: it outlives a crash and a log-out. For the user
/// alone (0600), each written whole or not at all; nothing is made before there is something to keep.
class DraftFiles {
  public:
    /// `folder` is absolute and need not exist.
    explicit DraftFiles(std::string folder) : m_folder(std::move(folder)) {}

    /// By the paths of the macros. What cannot be read is left out.
    std::map<std::string, Draft> all() const;
    /// `path` has no line end.
    Result<> keep(const std::string& path, const Draft& draft) const;
    void forget(const std::string& path) const;

  private:
    std::string fileOf(const std::string& path) const;

    std::string m_folder;
};

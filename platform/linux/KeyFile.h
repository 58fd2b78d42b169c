// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/Result.h"
#include "platform/linux/GLibPointers.h"

/// The content of a key file (desktop entry standard). What is not touched, comments among it, stays as it
/// is.
class KeyFile {
  public:
    /// An empty one.
    KeyFile();

    /// The error tells what in the text is not as in a key file.
    static Result<KeyFile> parse(const std::string& content);

    /// The names of all groups, in order.
    std::vector<std::string> groups() const;
    /// The names in a group, in order; none if there is no such group.
    std::vector<std::string> keys(const std::string& group) const;
    /// The text under a key as it is written, without the blanks around it; empty if there is none.
    std::optional<std::string> text(const std::string& group, const std::string& key) const;
    /// False if that was its text before.
    bool set(const std::string& group, const std::string& key, const std::string& text);

    /// Without it afterwards; nothing happens where there is none.
    void remove(const std::string& group, const std::string& key);
    void removeGroup(const std::string& group);

    std::string content() const;

  private:
    GKeyFilePointer m_file;
};

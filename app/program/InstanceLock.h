// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "platform/Descriptor.h"

/// A file that one process of a display at a time has locked. The system takes the lock back however that
/// process ends; the file stays.
class InstanceLock {
  public:
    /// `folder` is the user's runtime folder, empty for none: then nothing can be locked and every process
    /// gets the lock.
    InstanceLock(const std::string& folder, const std::string& display);

    /// False while another process has the lock.
    bool isOurs() const { return m_isOurs; }

    /// What others may know of the one that has the lock; replaces what was noted before.
    void note(const std::string& text) const;
    /// What another process that has the lock has noted; empty if none has it.
    static std::optional<std::string> noteOfOther(const std::string& folder, const std::string& display);

  private:
    Descriptor m_file;
    bool m_isOurs = true;
};

// SPDX-License-Identifier: MIT
#pragma once

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

  private:
    Descriptor m_file;
    bool m_isOurs = true;
};

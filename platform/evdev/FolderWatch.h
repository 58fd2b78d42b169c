// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/Descriptor.h"

namespace evdev {

/// Tells when a device file may have come or may have become readable.
class FolderWatch {
  public:
    /// Of a folder that is not there nothing is told.
    explicit FolderWatch(const std::string& folder);

    /// Readable when there is something to take; -1 if nothing is watched.
    int fileDescriptor() const { return m_watch.number(); }

    /// Whether a file has come since the last call, or the rights to one have changed.
    bool take() const;

  private:
    Descriptor m_watch;
};

}  // namespace evdev

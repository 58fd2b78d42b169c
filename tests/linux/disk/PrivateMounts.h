// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "support/Child.h"

/// From now on mounts of this process are its own and gone with it. Needs no privilege where the system lets
/// users make namespaces; throws where neither that nor root's way is open. Only while the process has one
/// thread.
void enterPrivateMounts();

/// A disk of 16 pages of memory, mounted on a folder of its own; gone with the object.
class SmallDisk {
  public:
    SmallDisk();
    ~SmallDisk();
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    std::string file(const std::string& name) const { return m_folder.file(name); }
    const std::string& path() const { return m_folder.path(); }
    /// What lies in one of its folders, in order.
    std::vector<std::string> names(const std::string& folder = ".") const;

    /// Fills the disk until that many pages are free.
    void fillUntil(unsigned long freePages) const;
    void makeReadOnly() const;

  private:
    TemporaryFolder m_folder;
};

/// A page in bytes: what a file on such a disk takes at least, unless it is empty.
std::size_t pageSize();

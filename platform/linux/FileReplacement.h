// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <string>
#include <string_view>

#include "platform/Descriptor.h"
#include "platform/Result.h"

/// A new file that takes the place of another one once it is whole and on the disk. Until then it lies beside
/// it under the name ".keyrill-unfinished-" and the file's own number on its file system (st_ino). The
/// object's end removes what has not taken its place; what the end of the process leaves is swept later.
///
/// Why the number: a file that a user has named so, or has copied, has another one, and is never swept. In
/// the instant before it is known the file is empty and has six letters in its place; a process that is
/// killed just then leaves it.
class FileReplacement {
  public:
    /// `file` is no link.
    explicit FileReplacement(std::string file);
    ~FileReplacement();
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    /// Writes the file and puts it in its place. The error's message is the system's cause alone.
    Result<> finish(std::string_view content, mode_t mode);

    /// Removes those in a folder whose writers have ended. Others' files and those that are being written
    /// stay.
    static void sweep(const std::string& folder);

  private:
    Result<> open();
    void nameAfterItsNumber();
    Result<> write(std::string_view content, mode_t mode);

    std::string m_file;
    /// Empty while there is nothing to remove.
    std::string m_unfinished;
    Descriptor m_descriptor;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Result.h"

/// A file that is read and written as one piece.
class WholeFile {
  public:
    /// What errors call it: "The settings file PATH cannot be read: CAUSE".
    enum class Kind { any, settings, macroSettings };

    explicit WholeFile(std::string path, Kind kind = Kind::any);

    /// Where the path leads: links are followed, also one whose target is not there; the path itself where
    /// they lead nowhere.
    std::string target() const;

    /// Whether there is nothing to read: neither a file nor anything else.
    bool isAbsent() const;

    /// More is read of no file.
    static constexpr std::size_t greatestSize = std::size_t{64} << 20U;

    /// The content. Fails for all that is not a regular file (RegularFile.h), and above `most` bytes, which
    /// are whole MiB.
    Result<std::string> read(std::size_t most = greatestSize) const;
    /// That one's error above `most` bytes.
    Error tooLarge(std::size_t most) const;

    /// Replaces the content: once it returns, that is on the disk; whatever goes wrong, a crash of the
    /// machine among it, the old file is there as it was. Links stay, and root leaves a file its owner.
    ///
    /// `mode` is the file's from now on; without one a file keeps its own, and a new one gets 0600. Fails for
    /// all that is not a regular file, and for one that is write-protected.
    Result<> write(std::string_view content, std::optional<mode_t> mode = std::nullopt) const;

    /// Removes what killed writers left beside the file; write() does it too.
    void removeLeftovers() const;

  private:
    /// With the cause's hint if it has one.
    Error cannotBeRead(const Error& cause) const;
    Error cannotBeWritten(const Error& cause) const;

    std::string m_path;
    Kind m_kind;
};

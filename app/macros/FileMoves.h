// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <string>

#include "platform/Result.h"

/// Where a file is now that was put into the trash, and where it came from.
struct TrashedFile {
    std::string from;
    std::string in;
};

/// What becomes of macro files as files. Nothing is ever overwritten. Paths are absolute, in bytes; errors
/// are worded for the user.
class FileMoves {
    Q_DECLARE_TR_FUNCTIONS(FileMoves)

  public:
    /// Whether something has that name, also a link that leads nowhere.
    static bool isThere(const std::string& path);
    /// The name with the file's folder and ending; an error where no file can be called so: an empty one, one
    /// with a slash, one that is too long or hidden.
    static Result<std::string> named(const std::string& path, const QString& name);
    /// In the same folder, a name that no file has: "Greeting 2".
    static std::string freeName(const std::string& path);

    static Result<> rename(const std::string& from, const std::string& to);
    /// Byte for byte, for the user alone.
    static Result<> copy(const std::string& from, const std::string& to);
    static Result<TrashedFile> trash(const std::string& path);
    /// Fails where something else has its name by now.
    static Result<> restore(const TrashedFile& file);
};

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "platform/Result.h"

/// The text files in which the user keeps macros.
class MacroFiles {
  public:
    virtual ~MacroFiles() = default;

    /// The folder to look in first, an absolute path. It need not be there.
    virtual std::string folder() const = 0;

    /// The same folder. It is made if nothing stands at its place; that it could not be made is not told.
    virtual std::string prepareFolder() = 0;

    /// A file's whole text in UTF-8, without byte order mark. Files are UTF-8 or UTF-16 with a byte order
    /// mark, UTF-8 without one, or else MacRoman. The error tells why the file cannot be read; one that is
    /// larger than a script may be (largestScript in platform/ScriptingService.h) cannot, nor can its text.
    virtual Result<std::string> read(const std::string& path) const = 0;

    /// Writes a file whole, or leaves what was there as it was, also when the machine stops meanwhile. A new
    /// file is for the user alone (0600); an existing one keeps its mode and, where the path is a link, the
    /// link. The text has to be ASCII: the error names line and character of the first that is not. Other
    /// errors tell why the file cannot be written.
    virtual Result<> write(const std::string& path, std::string_view text) = 0;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "platform/Result.h"
#include "platform/script/source/Location.h"

/// What a file says, as UTF-8.
struct ScriptText {
    std::string text;
    /// The first place that is no UTF-8, of a file that is taken for MacRoman for that reason
    /// (platform/Encoding.h).
    std::optional<script::Location> noUtf8 = {};
};

/// The script in a file, "-" being standard input. Reads no more than a script may have; a longer
/// file comes cut off behind the bound, where the compiler refuses it. Fails where the file cannot be read or
/// is no regular file.
Result<ScriptText> readScript(const std::string& file);

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/Result.h"

/// The script in a file, "-" being standard input, as UTF-8. Reads no more than a script may have; a longer
/// file comes cut off behind the bound, where the compiler refuses it. Fails where the file cannot be read or
/// is no regular file.
Result<std::string> readScript(const std::string& file);

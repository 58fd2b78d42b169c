// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "platform/Result.h"

/// Whether a text in UTF-8 is ASCII, as macro files are. The error names the line (from 1), the place in it
/// (characters from 1) and the first character that is not.
Result<> checkAscii(std::string_view text);

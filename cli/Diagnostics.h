// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/script/source/ScriptError.h"

/// What is wrong with a script, or may be, as a JSON array for editors; `error` is null where it compiles.
/// Lines and columns count from 1, columns and lengths in characters; the length is that of the word or sign
/// at the place, 0 at the end of a line.
std::string diagnostics(const std::string& source, const script::ScriptError* error,
                        const std::vector<script::ScriptWarning>& warnings);

// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "platform/Result.h"

/// A program's path as the value of Exec in a desktop entry, quoted and escaped as the desktop entry standard
/// says (1.5, "The Exec key" and "String").
///
/// Fails for a path with a percent sign, which no launcher starts, and for one that is not UTF-8.
Result<std::string> execValue(const std::string& path);

/// The program's path in the value of Exec; empty where it is none.
std::optional<std::string> programIn(const std::string& execValue);

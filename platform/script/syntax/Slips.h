// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "platform/script/source/ScriptError.h"

namespace script {

/// The hint for a slip that the line of an error shows; empty if it shows none. `knowsKeyboard` says whether
/// the keyboard commands were known there.
std::string hintOfLine(const ScriptError& error, std::string_view source, bool knowsKeyboard);

}  // namespace script

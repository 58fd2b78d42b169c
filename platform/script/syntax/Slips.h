// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "platform/script/source/ScriptError.h"
#include "platform/script/syntax/Node.h"

namespace script {

/// The hint for a slip that the line of an error shows; empty if it shows none. The tree is what was read
/// before; `knowsKeyboard` says whether the keyboard commands were known there.
std::string hintOfLine(const ScriptError& error, const Tree& tree, std::string_view source,
                       bool knowsKeyboard);

}  // namespace script

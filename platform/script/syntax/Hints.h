// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "platform/script/source/ScriptError.h"
#include "platform/script/syntax/Node.h"

namespace script {

/// What to do about an error of syntax, for the usual slips; empty for all others. The tree is what was read
/// before the error.
std::string syntaxHint(const ScriptError& error, const Tree& tree, std::string_view source);

}  // namespace script

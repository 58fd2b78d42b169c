// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "platform/script/source/ScriptError.h"
#include "platform/script/syntax/Node.h"

namespace script {

/// An error of syntax with what to do about it, for the usual slips; all others stay as they are. The tree is
/// what was read before the error; `isInsideTell` says whether the keyboard commands were known there. An
/// error behind a text that was never closed moves to where that text begins.
ScriptError explained(ScriptError error, const Tree& tree, std::string_view source, bool isInsideTell);

}  // namespace script

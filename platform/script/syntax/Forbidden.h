// SPDX-License-Identifier: MIT
#pragma once

#include "platform/script/source/TokenStream.h"

namespace script {

// What AppleScript has and scripts may not do here. People pass macros on to each other: a macro presses
// keys; it does not run programs.

/// Fails where a command stands that is forbidden: `do shell script`.
bool refuseForbiddenCommand(TokenStream& tokens);

/// Fails where a statement stands that is forbidden: a script in the script.
bool refuseForbiddenStatement(TokenStream& tokens);

}  // namespace script

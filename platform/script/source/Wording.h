// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Sentence.h"

namespace script {

// How messages say what all of them say.

/// What a script says, as messages quote it: whole, or cut off behind so many bytes with "…". People read it.
std::string shortened(std::string_view text, std::size_t most = 100);

/// “text”, shortened.
Sentence quoted(std::string_view text);

/// “a”, “b” or “c”
Sentence alternatives(const std::vector<std::string_view>& words);

/// What belongs at a place of a script, or stands there.
namespace part {
//: what a script was expected to have somewhere, or has there
inline Sentence className() { return sentence("ScriptErrors", "class name"); }
//: what a script was expected to have somewhere, or has there
inline Sentence endOfLine() { return sentence("ScriptErrors", "end of line"); }
//: what a script was expected to have somewhere, or has there
inline Sentence endOfScript() { return sentence("ScriptErrors", "end of script"); }
//: what a script was expected to have somewhere, or has there
inline Sentence expression() { return sentence("ScriptErrors", "expression"); }
//: what a script was expected to have somewhere, or has there
inline Sentence identifier() { return sentence("ScriptErrors", "identifier"); }
//: what a script was expected to have somewhere, or has there
inline Sentence number() { return sentence("ScriptErrors", "number"); }
//: what a script was expected to have somewhere, or has there
inline Sentence unknownToken() { return sentence("ScriptErrors", "unknown token"); }
//: what a script was expected to have somewhere, or has there
inline Sentence variableName() { return sentence("ScriptErrors", "variable name"); }
}  // namespace part

/// "Expected WHAT but found OTHER."
Sentence expectedButFound(Sentence what, Sentence other);

/// "The NAME parameter is specified more than once."
Sentence parameterTwice(std::string_view name);
Sentence propertyTwice(std::string_view name);
Sentence handlerTwice(std::string_view name);

/// "WHO got an error: WHAT"
Sentence gotAnError(std::string_view who, Sentence what);

}  // namespace script

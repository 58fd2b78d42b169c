// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "platform/script/source/ScriptError.h"

namespace script {

class ErrorLine;

/// What a word may be in a script.
enum class WordPlace : std::uint8_t {
    statement,  ///< the first of a line
    value,
    text,      ///< a value that is typed
    modifier,  ///< behind a keyboard command
    within,    ///< in the midst of a line
    block,     ///< behind `end`
};

/// Whether it is a word, in lower case, that the language does not know.
bool isUnknown(std::string_view word);

/// The word of the language that was meant by one which is none, by what may stand there; empty if none is
/// near.
std::string wordLike(std::string_view misspelt, WordPlace place);

/// Whether the line was meant to begin with `on error`.
bool isOnErrorMeant(const ErrorLine& line);

/// What the misspelt word was meant to be that has led to an error of syntax; empty if none has.
/// `isOther` tells whether a word is none of those: a name of the script, or one that another hint knows.
std::string wordMeant(const ScriptError& error, const ErrorLine& line,
                      const std::function<bool(std::string_view)>& isOther);

}  // namespace script

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/script/ScriptError.h"

namespace script {

/// What an instruction does with the stack of values. In brackets: what `operand` and `detail` hold.
enum class Operation : std::uint8_t {
    pushInteger,       ///< [the number]
    pushReal,          ///< [index into reals]
    pushText,          ///< [index into texts]
    pushModifier,      ///< [bit of platform/Modifiers.h; 1 for `command down`, 0 for `command`]
    pushList,          ///< takes items off the stack, the last one first [their count]
    pushVariable,      ///< [index of the name into texts]
    negate,            ///< replaces the top
    binary,            ///< replaces the two topmost [-; BinaryOperator]
    drop,              ///< takes the top off
    keyCode,           ///< takes codes, then modifiers if there are any [-; 1 with modifiers]
    keystroke,         ///< takes the text, then modifiers likewise
    keyDown,           ///< takes the keys
    keyUp,             ///< takes the keys
    delay,             ///< takes the seconds
    reachApplication,  ///< an application other than System Events is told [index of its name into texts]
    makeCount,         ///< replaces the top by a whole number
    countDown,         ///< lowers the top by one, or jumps if it is below 1 [target]
    jump,              ///< [target]
    jumpBack,          ///< the end of a loop's body: the user may have asked to stop [target]
};

struct Instruction {
    Operation operation = Operation::drop;
    std::uint8_t detail = 0;
    std::uint32_t operand = 0;
    std::uint32_t offset = 0;  ///< in bytes, the place in the source that errors name
};

/// A compiled script, on its own: the source is kept for the places of errors.
struct Program {
    std::string source;
    std::vector<Instruction> instructions;
    std::vector<double> reals;
    std::vector<std::string> texts;
    /// The literal texts that the script may type, in the order of the source.
    std::vector<std::string> typedTexts;
    /// What the compiler noticed: codes that only this program plays, or that no key has.
    std::vector<ScriptWarning> warnings;
};

}  // namespace script

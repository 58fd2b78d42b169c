// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/script/source/Name.h"
#include "platform/script/source/ScriptError.h"
#include "platform/script/values/Value.h"

namespace script {

/// What an instruction does with the stack of values. In brackets: what `operand` and `detail` hold.
/// "Takes a, b" means that b lies on top.
enum class Operation : std::uint8_t {
    pushNothing,
    pushMissing,
    pushTruth,       ///< [0 or 1]
    pushInteger,     ///< [the number]
    pushReal,        ///< [index into reals]
    pushText,        ///< [index into texts]
    pushModifier,    ///< [bit of platform/Modifiers.h; 1 for `command down`, 0 for `command`]
    pushPredefined,  ///< [-; index of a PredefinedName]
    pushMe,
    pushIt,
    pushResult,
    pushApplication,  ///< [index of the name into texts; 1 if it is System Events]
    pushDelimiters,
    makeApplication,  ///< takes the name
    makeProcess,      ///< takes the name, or the index among all
    pushProcesses,    ///< all of them, in a list
    pushList,         ///< takes items, the last one on top [their count]
    pushRecord,       ///< takes values likewise [index into shapes]
    loadLocal,        ///< [slot]
    loadGlobal,       ///< [slot]
    storeLocal,       ///< takes the value [slot]
    storeGlobal,      ///< takes the value [slot]
    duplicate,
    drop,
    deepCopy,   ///< replaces the top by a copy that shares nothing
    pick,       ///< puts an item of the list on top above it [index from 1]
    pickField,  ///< puts a property of the record on top above it [name]

    negate,           ///< replaces the top
    invert,           ///< replaces the top by what it is not
    binary,           ///< replaces the two topmost [-; BinaryOperator]
    skipUnlessTrue,   ///< drops a true top, or jumps and leaves it [target]
    skipUnlessFalse,  ///< drops a false top, or jumps and leaves it [target]
    expectTruth,      ///< fails unless the top is true or false
    coerce,           ///< replaces the top [-; Type]
    coerceAny,        ///< replaces the top [index into typeLists]
    getElement,       ///< takes container, indices [Type; kind and form]
    setElement,       ///< takes value, container, indices [likewise]
    makeReference,    ///< takes container, indices [likewise]
    referToVariable,  ///< [slot; 1 if it is global]
    textBetween,      ///< takes container, two indices [kind and form of the first and, 8 bits up, the last]
    getProperty,      ///< takes the container [name]
    setProperty,      ///< takes value, container [name]
    getPropertyOfEach,  ///< replaces a list of processes by a list [name]
    getContents,        ///< replaces a reference by what it leads to
    setContents,        ///< takes value, reference
    setDelimiters,      ///< takes the value
    characterId,        ///< takes a number or list of them

    call,          ///< takes a target if detail is 1, arguments [index into calls]
    command,       ///< takes arguments [index, and mask of those given 8 bits up]
    requireValue,  ///< fails if there is nothing on top
    setResult,     ///< takes the value of a statement
    clearResult,
    returnValue,  ///< takes the value; with detail 1 it is that of the last statement
    enter,        ///< begins a handler [how many variables it has]

    jump,         ///< [target]
    jumpIfFalse,  ///< takes a condition [target]
    makeCount,    ///< replaces the top by a whole number
    countDown,    ///< lowers the top by one, or jumps if it is below 1 [target]
    beginRange,   ///< looks at from, to, step, which are whole numbers
    nextInRange,  ///< puts the next number above these, or jumps [target]
    beginList,    ///< replaces the top by list, count, index
    nextInList,   ///< puts a reference to the next item above these, or jumps [target]
    keepItem,     ///< takes a condition; if it is true, the item is put into the list below these

    pushTry,  ///< errors go to [target]
    popTry,
    pushErrorPart,  ///< [-; ErrorPart]
    raise,          ///< takes parts of an error [-; bits of ErrorPart]
    rethrow,
    pushTarget,  ///< takes what `tell` addresses
    popTarget,
    pushAttributes,  ///< [attributes considered, those ignored 8 bits up]
    popAttributes,
    expectNumber,  ///< takes a number and does nothing with it

    last = expectNumber,
};

struct Instruction {
    Operation operation = Operation::drop;
    std::uint8_t detail = 0;
    std::uint32_t operand = 0;
    std::uint32_t offset = 0;  ///< in bytes, the place in the source that errors name
};

/// A handler of the script.
struct Handler {
    NameId name = 0;
    bool isLabelled = false;
    /// Of the parameters, in the order of its slots; 0 for those without.
    std::vector<NameId> labels;
    /// What errors call the parameters.
    std::vector<NameId> parameterNames;
    /// Its variables, the parameters first.
    std::vector<NameId> variables;
    std::uint32_t start = 0;
};

/// A call of a handler of the script.
struct Call {
    NameId name = 0;
    bool isLabelled = false;
    std::vector<NameId> labels = {};  ///< one for each argument
    std::uint32_t count = 0;
    std::uint32_t handler = 0;  ///< its index; 0, which is never called, if the script has none
    std::uint32_t offset = 0;   ///< in bytes, its place in the source
};

/// What the machine runs, on its own: the source is kept for the places of errors.
struct Bytecode {
    std::string source;
    std::vector<Instruction> instructions;
    std::vector<double> reals;
    std::vector<Text> texts;
    NameTable names;
    std::vector<NameId> globals;    ///< by slot
    std::vector<Handler> handlers;  ///< the first one runs
    std::vector<Call> calls;
    std::vector<std::vector<NameId>> shapes;
    std::vector<std::vector<Type>> typeLists;
    /// The literal texts that the script may type, in the order of the source.
    std::vector<std::string> typedTexts;
    /// What the compiler noticed: codes that only this program plays, or that no key has.
    std::vector<ScriptWarning> warnings;
    /// What was probably meant by names that are never set, where more is known than that.
    std::unordered_map<NameId, std::string> advice;
    /// Likewise, of names that the rest of the script sets, where a handler reads its own ones before they
    /// are set.
    std::unordered_map<NameId, std::string> adviceInHandlers;
};

}  // namespace script

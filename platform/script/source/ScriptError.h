// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/Sentence.h"
#include "platform/script/source/Location.h"

namespace script {

/// The numbers of errors, as AppleScript's own documents list them.
namespace errornumber {
inline constexpr int outOfMemory = -108;
inline constexpr int userCancelled = -128;
inline constexpr int notAllowed = 1002;
inline constexpr int cannotCoerce = -1700;
inline constexpr int missingParameter = -1701;
inline constexpr int notUnderstood = -1708;
inline constexpr int timedOut = -1712;
inline constexpr int wrongParameters = -1721;
inline constexpr int noSuchObject = -1728;
inline constexpr int byScript = -2700;
inline constexpr int divisionByZero = -2701;
inline constexpr int tooLarge = -2702;
inline constexpr int stackOverflow = -2706;
inline constexpr int considerAndIgnore = -2720;
inline constexpr int syntax = -2741;
inline constexpr int parameterTwice = -2750;
inline constexpr int propertyTwice = -2751;
inline constexpr int handlerTwice = -2752;
inline constexpr int undefinedVariable = -2753;
inline constexpr int localAndGlobal = -2754;
inline constexpr int exitOutsideRepeat = -2755;
inline constexpr int tellTooDeep = -2760;
inline constexpr int noResult = -2763;
inline constexpr int handlerFailed = -10000;
inline constexpr int cannotSet = -10006;
}  // namespace errornumber

/// What an error with this number says that has no words of its own.
Sentence standardMessage(int number);

/// Why a script does not compile, or where its run ended.
struct ScriptError {
    int number = 0;
    /// One sentence, in the words of AppleScript where it has words for the case. Scripts read and compare it
    /// in English, whatever is spoken.
    Sentence message;
    Location location;
    /// What to do about it, one sentence; empty if nothing is known.
    Sentence hint = {};

    friend bool operator==(const ScriptError&, const ScriptError&) = default;
};

/// Something that works, but perhaps not as meant.
struct ScriptWarning {
    /// In the language of the user.
    std::string message;
    Location location;

    friend bool operator==(const ScriptWarning&, const ScriptWarning&) = default;
};

}  // namespace script

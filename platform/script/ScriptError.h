// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/script/Location.h"

namespace script {

/// The numbers of errors, as AppleScript's own documents list them.
namespace errornumber {
inline constexpr int userCancelled = -128;
inline constexpr int notAllowed = 1002;
inline constexpr int cannotCoerce = -1700;
inline constexpr int noSuchObject = -1728;
inline constexpr int divisionByZero = -2701;
inline constexpr int tooLarge = -2702;
inline constexpr int syntax = -2741;
inline constexpr int undefinedVariable = -2753;
inline constexpr int exitOutsideRepeat = -2755;
inline constexpr int tellTooDeep = -2760;
inline constexpr int handlerFailed = -10000;
}  // namespace errornumber

/// Why a script does not compile, or where its run ended.
struct ScriptError {
    int number = 0;
    /// One sentence, UTF-8, in the words of AppleScript where it has words for the case.
    std::string message;
    Location location;

    friend bool operator==(const ScriptError&, const ScriptError&) = default;
};

/// Something that works, but perhaps not as meant.
struct ScriptWarning {
    std::string message;
    Location location;

    friend bool operator==(const ScriptWarning&, const ScriptWarning&) = default;
};

}  // namespace script

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "library/LibraryEntry.h"
#include "platform/Result.h"

class MacroLibrary;

/// How users call a macro outside of any window: its path without the ending, "greetings/Hello". Bytes in
/// whatever encoding.
std::string_view longName(const LibraryEntry& entry);

/// Why a name means no macro.
struct UnknownName {
    /// The long names of those that have the name, in several groups. Empty if none has.
    std::vector<std::string> several = {};
    /// The long names of those that may have been meant, if none has the name: at most three, the nearest
    /// first.
    std::vector<std::string> near = {};

    friend bool operator==(const UnknownName&, const UnknownName&) = default;
};

/// The path of the macro that a name means: its long name, or if it is the only one of that name its name
/// alone, either with or without the ending. So a macro of no group has its name before those of groups.
Result<std::string, UnknownName> pathOfNamed(const MacroLibrary& library, std::string_view name);

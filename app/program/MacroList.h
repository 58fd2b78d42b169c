// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "library/LibraryEntry.h"
#include "platform/Result.h"

/// What the macro folder has.
struct MacroList {
    /// In no order.
    std::vector<LibraryEntry> entries = {};
    /// What of it cannot be read.
    std::vector<Error> faults = {};
};

/// Reads it, as far as it can be; nothing is there if there is no folder. Fails if it does not answer for 5
/// s.
Result<MacroList> readMacroList();

/// The long names (library/MacroNames.h), a line each, in the order of the window of the macros: those of no
/// group first, then by group and name whatever their case. Control characters are question marks.
std::string linesOf(const std::vector<LibraryEntry>& entries);

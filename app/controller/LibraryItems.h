// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "app/macros/MacroListItem.h"

class LibraryHotKeys;
class MacroLibrary;

/// The name of a macro, whose path may be in any encoding; empty for none.
QString macroName(const std::string& path);

/// The macros of the library as the window lists them, those of no group first, then by groups and names; and
/// among them those of which nothing but `unsaved` texts, by paths, are left.
std::vector<MacroListItem> libraryItems(const MacroLibrary& library, const LibraryHotKeys& hotKeys,
                                        const std::map<std::string, std::string>& unsaved);

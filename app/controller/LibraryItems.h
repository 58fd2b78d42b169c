// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "app/macros/DraftFiles.h"
#include "app/macros/MacroListItem.h"

class LibraryHotKeys;
class MacroLibrary;

/// The macros of the library as the window lists them, in the order of isListedBefore(); among
/// them those of which nothing but `unsaved` texts, by paths, are left.
std::vector<MacroListItem> libraryItems(const MacroLibrary& library, const LibraryHotKeys& hotKeys,
                                        const std::map<std::string, Draft>& unsaved);

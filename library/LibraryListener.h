// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/FolderListing.h"

/// What has become of the library, by paths. Each list is in the order of the bytes.
struct LibraryChanges {
    /// The library has been read for the first time: until then it is empty.
    bool isFirst = false;
    std::vector<std::string> appeared = {};
    std::vector<std::string> gone = {};
    /// All at the same time; see FolderChanges::Rename. What belongs to a macro has gone with it.
    std::vector<FolderChanges::Rename> renamed = {};
    /// Whose text may be another.
    std::vector<std::string> changed = {};
    /// Whose settings are others, by setSettings() or notePlayed(); not those of renamed macros.
    std::vector<std::string> settings = {};
    /// MacroLibrary::faults() has others.
    bool hasOtherFaults = false;

    friend bool operator==(const LibraryChanges&, const LibraryChanges&) = default;
};

/// Who is told when the library has changed.
class LibraryListener {
  public:
    virtual ~LibraryListener() = default;

    /// All that has changed within a moment, once the library is so. May ask everything of it, and change
    /// settings: that is told when all listeners have heard of this.
    virtual void libraryChanged(const LibraryChanges& changes) = 0;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "engine/EngineTest.h"
#include "library/MacroLibrary.h"

/// A library on the fake platform.
class LibraryTest : public EngineTest, public LibraryListener {
  protected:
    using Paths = std::vector<std::string>;

    LibraryTest() { library.addListener(*this); }

    FakeFolderFollower& folder() { return platform().folderFollower; }
    FakeRecordStore& records() { return platform().macroRecords; }

    void open() {
        library.open();
        folder().deliver();
        told.clear();
    }

    Paths paths() const {
        Paths paths;
        for (const LibraryEntry& entry : library.entries()) paths.push_back(entry.path);
        return paths;
    }

    /// With the combination Ctrl+Super and the key of that code.
    static Record hotKey(int code) {
        return {{"hotKeyCode", std::to_string(code)}, {"hotKeyFlags", "1310720"}};
    }

    void libraryChanged(const LibraryChanges& changes) override { told.push_back(changes); }

    MacroLibrary library{platform().folderFollower, platform().macroRecords, platform().macroFiles};
    /// What was told since the library was opened.
    std::vector<LibraryChanges> told;
};

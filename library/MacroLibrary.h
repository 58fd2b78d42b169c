// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "library/LibraryEntry.h"
#include "library/LibraryListener.h"
#include "library/MacroSettings.h"
#include "platform/FolderFollower.h"
#include "platform/Result.h"

class MacroFiles;
class RecordStore;

/// The macros that the user keeps: the files of the macro folder, each under its name, sub-folders being
/// groups; and what belongs to each and not into its text.
///
/// Only names are read, and texts when they are asked for; what others do in the folder is followed. Settings
/// belong to a path and are kept beside the files, never in them, so that a file that comes from somebody
/// else brings none. A macro that is renamed while the library is open keeps them, and takes those over whose
/// name it gets; one that is renamed to a name that has settings, and has none, gets them: so editors replace
/// a file. What is gone keeps them until it comes back under its name.
class MacroLibrary {
  public:
    /// All outlive the library.
    MacroLibrary(FolderFollower& follower, RecordStore& records, MacroFiles& files);
    MacroLibrary(const MacroLibrary&) = delete;
    MacroLibrary& operator=(const MacroLibrary&) = delete;

    /// Begins to follow the folder; listeners are told when it has been read. Nothing is made if there is no
    /// folder.
    void open();
    /// Whether it has been read since then: a folder may take its time.
    bool isRead() const { return m_isRead; }

    /// By their paths, in the order of the bytes.
    const std::vector<LibraryEntry>& entries() const { return m_entries; }
    /// Null if there is none. Good until the library changes.
    const LibraryEntry* find(std::string_view path) const;
    /// Those whose name that is, in whatever group, or whose group and name: "greetings/Hello". With or
    /// without the ending. Bytes; of a path that is no UTF-8 also as decodedText() has it.
    std::vector<LibraryEntry> named(std::string_view name) const;

    /// Absolute; empty before open().
    const std::string& folder() const { return m_folder; }
    std::string fileOf(std::string_view path) const;

    /// Reads the text. The error tells why it cannot be read.
    Result<std::string> text(std::string_view path) const;

    /// As at first for a path without any.
    MacroSettings settings(const std::string& path) const;
    /// Kept at the end of the loop's turn.
    void setSettings(const std::string& path, const MacroSettings& settings);
    void notePlayed(const std::string& path, PlayedAt when);
    /// The paths of all that have hot keys, also of those that are gone, in the order of the bytes.
    std::vector<std::string> pathsWithHotKeys() const;

    /// What of the folder cannot be read or followed.
    const std::vector<Error>& faults() const { return m_faults; }
    /// What is kept wrong of the settings and nobody was told yet: RecordStore::takeFault().
    std::optional<Error> takeFault();

    /// They outlive the library, or are removed before they end. In the order in which they were added.
    void addListener(LibraryListener& listener);
    void removeListener(LibraryListener& listener);

  private:
    void follow(const FolderChanges& changes);
    void replaceEntries(const FolderChanges& changes);
    void moveSettings(const std::vector<FolderChanges::Rename>& renamed);
    void tell(LibraryChanges changes);

    FolderFollower& m_follower;
    RecordStore& m_records;
    MacroFiles& m_files;
    std::string m_folder;
    bool m_isRead = false;
    std::vector<LibraryEntry> m_entries;
    std::vector<Error> m_faults;
    std::vector<LibraryListener*> m_listeners;
    std::deque<LibraryChanges> m_untold;
    bool m_isTelling = false;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Descriptor.h"
#include "platform/FolderListing.h"

/// The files of one kind in a folder and its sub-folders, as FolderFollower tells of them, read again where
/// inotify(7) says that something has happened.
///
/// Why nothing is taken from the events but where to look: they do not tell all, as when too many come at
/// once, and what is read afterwards is right whatever has come in which order.
class FolderTree {
  public:
    /// `folder` is absolute, `ending` small ASCII letters. Reads nothing yet.
    FolderTree(std::string folder, std::string ending);

    /// Readable when takeEvents() has something to do; -1 where nothing can be followed.
    int fileDescriptor() const { return m_watches.number(); }
    /// Without waiting. True if something has to be read again.
    bool takeEvents();
    /// Reads what has to be; at first all.
    void refresh();

    /// As of the last refresh().
    FolderListing files() const;
    /// By paths from the folder.
    std::vector<Error> faults() const;

  private:
    /// Which file or folder it is: a number is used again as soon as it is free, but not with the same time.
    using Identity = decltype(FileStamp::identity);

    struct Folder {
        int watch = -1;
        Identity identity{};
        /// By their names alone.
        FolderListing files;
        std::map<std::string, Identity> folders;
        std::optional<Error> fault;
    };

    std::string absolute(const std::string& path) const;
    void note(int watch, std::uint32_t what);
    void read(const std::string& path);
    void forget(const std::string& path);
    void followFolders(const std::string& path, const std::map<std::string, Identity>& before);
    /// Fills in what lies in the open folder; the cause if that cannot be told.
    static std::optional<std::string> readEntries(Descriptor open, const std::string& ending, Folder& folder);
    static void addEntry(int open, const char* name, unsigned char type, const std::string& ending,
                         Folder& folder);
    void watch(const std::string& path, Folder& folder);
    /// For a folder that is not there or may not be read: where something happens first when that changes.
    void watchAbove();
    /// Of the nearest one above that is there and may be read; -1 if there is none.
    int watchOfNearest() const;
    void stopWatchingAbove();
    void removeWatch(int watch);

    std::string m_folder;
    std::string m_ending;
    Descriptor m_watches;
    int m_watchAbove = -1;
    /// By their paths from the folder, which itself is "".
    std::map<std::string, Folder> m_folders;
    std::map<int, std::string> m_pathOfWatch;
    /// What has to be read again.
    std::set<std::string> m_dirty{""};
};

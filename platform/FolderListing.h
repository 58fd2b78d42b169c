// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "platform/Result.h"

/// What tells a file from others, whatever it is called, and its content from what it was before.
struct FileStamp {
    /// No other file has it as long as this one is there, nor one that comes after it.
    std::array<std::uint64_t, 4> identity{};
    /// Another one where the content may be another.
    std::array<std::uint64_t, 4> version{};

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

/// The files in a folder and its sub-folders by their paths from there: "greetings/hello.keyrill". Bytes, in
/// whatever encoding.
using FolderListing = std::map<std::string, FileStamp>;

/// What has become of the files of a folder. Each list is in the order of the bytes; a path stands in one of
/// them, or as both ends of renames: two files may have changed their places.
struct FolderChanges {
    struct Rename {
        std::string from;
        /// May have been another file's name, which is gone then. The content may be another, too.
        std::string to;

        friend bool operator==(const Rename&, const Rename&) = default;
    };

    std::vector<std::string> appeared = {};
    std::vector<std::string> gone = {};
    std::vector<Rename> renamed = {};
    /// Whose content may be another.
    std::vector<std::string> changed = {};
    /// What of the folder cannot be read, or not be followed, from now on.
    std::vector<Error> faults = {};

    friend bool operator==(const FolderChanges&, const FolderChanges&) = default;
};

/// What lies between two listings, faults left out. A file that is there under another name has been renamed,
/// also where another one has its old name now; a file in the place of one that is gone has changed its
/// content, as editors do that write a new file and rename it.
FolderChanges changesBetween(const FolderListing& before, const FolderListing& now);

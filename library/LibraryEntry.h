// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// A macro of the library, known by its file.
struct LibraryEntry {
    /// From the library's folder: "greetings/Hello.keyrill". Bytes in whatever encoding.
    std::string path;

    /// The file's name without its ending: "Hello".
    std::string_view name() const;
    /// The folders that it lies in: "greetings", "work/mail"; empty for the library's own.
    std::string_view group() const;

    friend bool operator==(const LibraryEntry&, const LibraryEntry&) = default;
};

/// What macro files end with, in whatever case.
inline constexpr std::string_view macroEnding = ".keyrill";

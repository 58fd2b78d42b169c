// SPDX-License-Identifier: MIT
#include "library/LibraryEntry.h"

std::string_view LibraryEntry::name() const {
    std::string_view name = path;
    const std::string_view folder = group();
    if (!folder.empty()) name.remove_prefix(folder.size() + 1);
    name.remove_suffix(macroEnding.size());
    return name;
}

std::string_view LibraryEntry::group() const {
    const auto slash = path.rfind('/');
    return std::string_view(path).substr(0, slash == std::string::npos ? 0 : slash);
}

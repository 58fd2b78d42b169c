// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <string>
#include <string_view>

/// Bytes in whatever encoding, as users see them.
QString shownText(std::string_view bytes);

/// The name of a macro of the library by its path; empty for none.
QString macroName(const std::string& path);

/// Whether a macro is listed before another: those of no group first, then by groups and by names as users
/// see them. An item has a path, a group and a name.
template <typename Item>
bool isListedBefore(const Item& one, const Item& other) {
    const int groups = QString::compare(one.group, other.group, Qt::CaseInsensitive);
    if (groups != 0) return groups < 0;
    const int names = QString::compare(one.name, other.name, Qt::CaseInsensitive);
    return names != 0 ? names < 0 : one.path < other.path;
}

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <string>

/// A macro of the list.
struct MacroListItem {
    /// By which it is known; bytes in whatever encoding.
    std::string path;
    QString name;
    /// Empty for those that are in none.
    QString group;
    /// As this desktop writes it; empty for none.
    QString hotKey = {};

    friend bool operator==(const MacroListItem&, const MacroListItem&) = default;
};

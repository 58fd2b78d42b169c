// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>

/// A case of a table: a script, or a piece of one, and what comes of it.
struct SourceRow {
    /// What the case is about, as a failure tells it.
    const char* what;
    std::string source;
    std::string result;
};

inline std::ostream& operator<<(std::ostream& out, const SourceRow& row) { return out << row.what; }

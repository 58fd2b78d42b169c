// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

/// A line of cases/*.cases, as its README tells.
struct FileCase {
    enum class Kind { value, events, runError, compileError };

    std::string name;  ///< "operators_12": the file and the line
    bool isPending = false;
    std::string source;
    Kind kind = Kind::value;
    std::string expected;  ///< the value, or "NUMBER MESSAGE"
    std::optional<std::string>
        events;         ///< those before a run error, or all; none where the case does not tell
    std::string place;  ///< "LINE:COLUMN" of the mark; empty without one
};

std::ostream& operator<<(std::ostream& out, const FileCase& row);

/// The case that a line holds, outside of a tell block.
FileCase caseOf(const std::string& line);

/// What came of a script, in the words of the case, and what was to come of it.
std::string outcomeOf(const FileCase& row);
std::string expectationOf(const FileCase& row);

/// All cases of all files of the folder, in the files' order.
std::vector<FileCase> readCaseFiles(const std::string& folder);

/// With the signs of the files in place of line ends and tabs.
std::string onOneLine(const std::string& text);

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <vector>

/// What a part of a script is, as the language's own lexer reads it.
enum class ScriptPart { keyword, command, number, text, comment, fault };

/// Where it stands in its line, in UTF-16 units.
struct ScriptSpan {
    int begin = 0;
    int length = 0;
    ScriptPart part = ScriptPart::keyword;

    friend bool operator==(const ScriptSpan&, const ScriptSpan&) = default;
};

/// What a line ends in and the next one begins in: 0 in nothing, 1 in a text, 1 + n in n comments within each
/// other.
using ScriptLineState = int;

struct ScriptLine {
    /// In order.
    std::vector<ScriptSpan> spans;
    ScriptLineState end = 0;
};

/// Reads one line of a script, without its end.
ScriptLine readScriptLine(const QString& line, ScriptLineState begin);

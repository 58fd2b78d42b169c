// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// What the compiler says of a place in a script.
struct ScriptProblem {
    /// From 1.
    int line = 1;
    int column = 1;
    /// It cannot be played; otherwise it perhaps does not do what is meant.
    bool isError = true;
    /// UTF-8, one sentence or two.
    std::string text;

    friend bool operator==(const ScriptProblem&, const ScriptProblem&) = default;
};

/// What there is to say of a script, by lines. It is compiled, not run.
std::vector<ScriptProblem> problemsOf(const std::string& source);

/// What can be typed where a word of the script language begins: commands and the words of statements, each
/// once, sorted, ASCII.
std::vector<std::string> scriptPhrases();

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/PlayOptions.h"

/// What a command is given: a file ("-" is standard input), or the lines of a script.
struct ScriptInput {
    std::string file;
    std::vector<std::string> lines;  ///< of -e, instead of a file
    bool wantsJson = false;          ///< of check: what it says is for an editor
    PlayOptions play = {};           ///< of run and trace
};

/// The commands of the program. Each tells on standard error what is wrong (see Report), and gives the exit
/// status: 0, or 1 after an error.

/// Compiles, and warns of what is probably not meant. As JSON it is told on standard output: an array of
/// objects, one a line, with kind ("error", "warning"), line, column, length (in characters), message, and of
/// errors number and hint. A file that cannot be read is an error at its beginning with the number 0.
int checkScript(const ScriptInput& input);

/// Prints what would be done, one JSON array a line, without pauses. Its times have a count.
int traceScript(const ScriptInput& input);

/// Presses the keys; where no keys can be pressed a script is run that presses none. A signal that ends the
/// run ends the process, once nothing is held any more. Of -e the value of the last line is printed. Of more
/// than one run the first that fails is the last; where they go on until they are stopped, to be stopped is
/// no error.
int runScript(const ScriptInput& input);

/// Prints the script in one layout.
int formatScript(const ScriptInput& input);

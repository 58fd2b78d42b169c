// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// The commands of the program. Each reads a file ("-" is standard input), tells on standard error what is
/// wrong with it, and gives the exit status: 0, or 1 after an error.
///
/// FILE:LINE:COL: syntax error: MESSAGE (NUMBER)
/// FILE:LINE:COL: execution error: MESSAGE (NUMBER)
/// FILE:LINE:COL: warning: MESSAGE

/// Compiles, and warns of what only this program understands.
int checkScript(const std::string& file);

/// Prints what would be done, one JSON array a line, without pauses.
int traceScript(const std::string& file);

/// Presses the keys. A signal that ends the run ends the process, once nothing is held any more.
int runScript(const std::string& file);

// SPDX-License-Identifier: MIT
#pragma once

struct CommandLine;

// What is asked of the macros by a command line, in the place of the whole program. The exit status: 0 if it
// was done, 1 if it could not be, 2 if the command line is none. For each but 0 there is a line on standard
// error.

/// Asks the running program to play the macro that the line names, a file, or without either what Play plays;
/// starts it if need be, in the background. Returns when the play is about to begin.
///
/// What begins with "/", "./" or "../" is a file; all else is the name of a macro, and a file only if the
/// library has no macro of that name and there is such a file.
int playMacro(const CommandLine& line);

/// Asks the running program to show the window of the macros, with the one that the line names; starts it if
/// need be.
int showMacros(const CommandLine& line);

/// Prints the names of the macros in the macro folder, whether the program runs or not: see linesOf().
int listMacros(const CommandLine& line);

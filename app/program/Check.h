// SPDX-License-Identifier: MIT
#pragma once

struct CommandLine;

/// Prints what works in the session that the process was started in and what does not, with what can be done
/// about it, on standard output. Opens no window, changes nothing, and is in the way of no program that runs:
/// hot keys are asked for and given back at once, and nothing is written.
///
/// The exit status: 0 if all works, 1 if something does not, 2 if that cannot be told.
int checkSession(const CommandLine& line);

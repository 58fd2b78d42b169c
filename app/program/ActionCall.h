// SPDX-License-Identifier: MIT
#pragma once

struct CommandLine;

/// Asks the running program to carry out the line's action and starts it if need be, in the background;
/// returns when it has answered. Needs no display where the program runs. To be called in the place of the
/// whole program.
///
/// The exit status: 0 if it was carried out, or, of one that plays, is about to; 1 if it could not be asked
/// for; 2 if it cannot be carried out now. For each but 0 there is a line on standard error.
int askForAction(const CommandLine& line);

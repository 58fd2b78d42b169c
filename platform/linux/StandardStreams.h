// SPDX-License-Identifier: MIT
#pragma once

/// Opens those of standard input, output and error that the process was started without, so that no file or
/// connection of the program's gets their numbers, and what is printed does not go there. Reading and writing
/// fail as before. The first call of a program.
void occupyStandardStreams();

// SPDX-License-Identifier: MIT
#pragma once

/// Prints all key codes, each with what is printed on its key; the exit status.
int printKeys();

/// Waits for a key and prints its code; the exit status. A modifier is no key by itself, and what is pressed
/// with Control is for others, as Ctrl+C. A signal ends the process. Fails where keys are not shown to this
/// program.
int printPressedKey();

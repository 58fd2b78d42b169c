// SPDX-License-Identifier: MIT
#pragma once

/// Prints all key codes, each with what is printed on its key; the exit status.
int printKeys();

/// Waits for a key and prints its code; the exit status. Fails where keys are not shown to this program.
int printPressedKey();

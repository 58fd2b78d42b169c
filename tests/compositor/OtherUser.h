// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// Compositors refuse to run as root: where the test does, they run as nobody.
namespace otheruser {

/// What stands before a command that must not run as root, and makes it end with the test.
std::vector<std::string> command(const std::vector<std::string>& words);
/// This process is that user's from now on, and others of his may look at it.
void become();
/// Makes a file or folder of the test that user's.
void giveAway(const std::string& file);
/// The same of a folder with all that is in it.
void giveAwayAll(const std::string& folder);

}  // namespace otheruser

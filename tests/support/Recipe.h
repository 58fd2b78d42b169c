// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// A recipe of the language reference, taken from its page as a reader takes it: the lines that are indented
/// below the heading. No such heading is an exception.
std::string recipe(const std::string& title);

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// The tokens of a script between blanks: words and names as spelled, numbers and texts likewise, "NL" for a
/// line end, and for what cannot be read its kind in angle brackets.
std::string printedTokens(std::string_view source);

/// The tree of a script in parentheses, statements of the script side by side; its error if it has one.
std::string printedTree(std::string_view source);

/// "line:column number message" of the error of a script; empty if it has none.
std::string printedError(std::string_view source);

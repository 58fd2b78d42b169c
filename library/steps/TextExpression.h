// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace steps {

/// A text (UTF-8) as an expression of the script language in ASCII: "caf" & (character id {233, 33}).
std::string expressionOfText(std::string_view text);

/// The text of an expression of exactly that form; empty for all others.
std::optional<std::string> textOfExpression(std::string_view expression);

}  // namespace steps

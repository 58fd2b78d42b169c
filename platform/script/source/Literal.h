// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace script {

/// The value of a number as scripts spell it: digits with at most one point, perhaps an exponent, no sign.
/// The point is `.` in every locale. Values too small for a real are 0; empty if too large, or no number.
std::optional<double> realOf(std::string_view spelled);

/// A number as it may stand in a text: blanks around, perhaps a sign. Empty if the text reads otherwise.
std::optional<double> numberInText(std::string_view text);

/// Whether what stands between the quotes of a text literal is the text itself.
bool isPlain(std::string_view spelled);

struct Unescaped {
    std::string text;
    /// Where in the spelling a backslash is followed by something that it cannot escape.
    std::optional<std::size_t> badEscape;
};

/// The text that stands between the quotes of a literal. CR and CR LF become LF; escapes are \" \\ \n \r \t.
Unescaped unescape(std::string_view spelled);

/// The text as it stands between two of that sign, a quote or a bar: with a backslash before each of it, and
/// before each backslash.
std::string escaped(std::string_view text, char sign);

}  // namespace script

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "library/steps/RecordedScript.h"
#include "platform/Result.h"

class KeyboardLayout;

namespace steps {

/// What the line's key types by itself or with Shift, UTF-8; empty for one that types nothing, for keys that
/// do something (Return, Ctrl+A), and for lines that are no keys.
std::string typedBy(const KeyboardLayout& layout, const Line& line);

/// The lines of a recording whose keys type the text under the layout, Return and Tab for line ends and
/// tabs. The error names the character that no key types.
Result<std::string> keyLinesOf(const KeyboardLayout& layout, std::string_view text);

/// Makes keys that type another text of lines of keys that type each a character. Those at both ends whose
/// characters stay are left as they are. The error names the character that no key types.
Result<Splice> retyped(const RecordedScript& recording, std::size_t first, std::size_t count,
                       std::string_view text, const KeyboardLayout& layout);

/// Makes texts of all keys that type among those lines, one of each run, so that they type the same under
/// other layouts. Empty if there are none.
std::optional<Splice> convertedToText(const RecordedScript& recording, std::size_t first, std::size_t count,
                                      const KeyboardLayout& layout);

/// Makes keys of all texts among those lines. Empty if there are none; an error where no key types one of
/// the characters.
Result<std::optional<Splice>> convertedToKeys(const RecordedScript& recording, std::size_t first,
                                              std::size_t count, const KeyboardLayout& layout);

}  // namespace steps

// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace script {

/// Parts of the language reference that are words alone: how to begin, which stands in front; limits, errors
/// and what is not there, which stand at the end.
extern const std::string_view firstScript;
extern const std::string_view closingNotes;

}  // namespace script

// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace script {

/// Whether an application's name, or its identifier, is that of System Events, whose dictionary holds the
/// keyboard commands. Case does not matter, and the name may end in ".app".
bool isSystemEvents(std::string_view name, bool byIdentifier);

}  // namespace script

// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// Whether a version is newer than another. Versions are decimal numbers with dots between them, compared
/// number by number; missing ones are 0 ("1.0" equals "1"). A text that is no version is neither newer nor
/// older.
bool isNewerVersion(std::string_view version, std::string_view than);

// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// Writes all of the bytes to an open file, from where it stands. 0, or the number of the error (errno(3)),
/// with a part of them written.
int writeAll(int file, std::string_view bytes);

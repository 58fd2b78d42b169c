// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace script {

/// Whole numbers reach to 2^29 - 1 either way; larger ones are reals.
inline constexpr std::int64_t maxInteger = 536870911;

}  // namespace script

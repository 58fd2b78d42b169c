// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

/// How many bytes must be changed, put in, left out or swapped with their neighbour to make one word the
/// other.
std::size_t editDistance(std::string_view left, std::string_view right);

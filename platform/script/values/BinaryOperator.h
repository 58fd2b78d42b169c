// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace script {

/// What two values are joined by.
enum class BinaryOperator : std::uint8_t {
    power,
    times,
    over,
    div,
    mod,
    plus,
    minus,
    join,
    less,
    lessOrEqual,
    greater,
    greaterOrEqual,
    equal,
    contains,
    startsWith,
    endsWith,
    isIn,    ///< `contains` with its sides changed
    both,    ///< `and`
    either,  ///< `or`
};

}  // namespace script

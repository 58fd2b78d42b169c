// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/script/TokenStream.h"

namespace script {

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

/// How operators of one level group; `none` refuses a second one beside the first.
enum class Grouping : std::uint8_t { left, right, none };

/// A row of the precedence table: what the operator looks like, how tightly it binds and how it groups.
struct OperatorRow {
    std::string_view spelling;  ///< words with one blank between them, or a sign
    BinaryOperator operation;
    bool isNegated;
    int level;  ///< higher binds tighter
    Grouping grouping;
};

/// Binds tighter than every binary operator: -2 ^ 2 is 4.
inline constexpr int unaryLevel = 100;
/// `as`, whose right side is no expression.
inline constexpr int coercionLevel = 50;
inline constexpr int notLevel = 30;

/// The operator with the longest spelling that stands at the current token; null if none does.
const OperatorRow* binaryOperator(const TokenStream& tokens);

/// Moves behind the operator.
void skipOperator(TokenStream& tokens, const OperatorRow& row);

}  // namespace script

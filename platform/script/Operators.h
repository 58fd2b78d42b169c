// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "platform/script/Token.h"

namespace script {

enum class BinaryOperator : std::uint8_t { power, times, over, div, mod, plus, minus, join };

/// How operators of one level group.
enum class Grouping : std::uint8_t { left, right };

/// A row of the precedence table: what the operator looks like, how tightly it binds and how it groups.
struct OperatorRow {
    TokenKind token;
    Word word;  ///< for operators that are words; their token is an identifier
    BinaryOperator operation;
    int level;  ///< higher binds tighter
    Grouping grouping;
};

/// Binds tighter than every binary operator: -2 ^ 2 is 4.
inline constexpr int unaryLevel = 100;

/// The row of the operator that the token is; null if it is none.
const OperatorRow* binaryOperator(const Token& token);

}  // namespace script

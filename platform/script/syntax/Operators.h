// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/script/source/TokenStream.h"
#include "platform/script/values/BinaryOperator.h"

namespace script {

/// How operators of one level group; `none` refuses a second one beside the first.
enum class Grouping : std::uint8_t { left, right, none };

/// A row of the precedence table: what the operator looks like, how tightly it binds and how it groups.
struct OperatorRow {
    Phrase spelling;
    BinaryOperator operation = BinaryOperator::power;
    bool isNegated = false;
    int level = 0;  ///< higher binds tighter
    Grouping grouping = Grouping::left;
    /// Of an operator that is a sign, however that is spelled.
    TokenKind sign = TokenKind::identifier;
};

/// Binds tighter than every binary operator: -2 ^ 2 is 4.
inline constexpr int unaryLevel = 100;
/// `as`, whose right side is no expression.
inline constexpr int coercionLevel = 50;
/// `is running`, `exists` behind an application; as `=`.
inline constexpr int stateLevel = 40;
inline constexpr int notLevel = 30;

/// The operator with the most words that stands at the current token; null if none does.
const OperatorRow* binaryOperator(const TokenStream& tokens);

/// How the operator is mostly spelled.
std::string_view spellingOf(BinaryOperator operation, bool isNegated);

/// Whether the token behind the current one begins an operator, or is `as`, and can begin no expression.
bool isOperatorAhead(const TokenStream& tokens);

}  // namespace script

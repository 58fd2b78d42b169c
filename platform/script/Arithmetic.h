// SPDX-License-Identifier: MIT
#pragma once

#include "platform/script/Operators.h"
#include "platform/script/Value.h"

namespace script {

/// The most bytes that a text made by joining may have.
inline constexpr std::size_t maxTextSize = 16U << 20U;

/// The value of `left OPERATOR right`.
///
/// Whole numbers stay whole, past maxInteger they become reals; `/` and `^` give reals; `div` cuts toward
/// zero; `mod` has the sign of the left side. Joining gives a text where the left side is one, else a list.
/// Fails with -1700 (no number), -2701 (division by zero), -2702 (too large).
Fallible<Value> evaluate(BinaryOperator operation, Value left, const Value& right);

Fallible<Value> negated(const Value& value);

}  // namespace script

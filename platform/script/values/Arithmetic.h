// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "platform/script/values/BinaryOperator.h"
#include "platform/script/values/Value.h"

namespace script {

/// The value of `left OPERATOR right` for the operators of arithmetic.
///
/// Whole numbers stay whole, past maxInteger they become reals; `/` and `^` give reals; `div` cuts toward
/// zero; `mod` has the sign of the left side. Seconds can be added to and taken from a date, and a date from
/// a date. Fails with -1700 (no number), -2701 (division by zero), -2702 (too large, or a power that is no
/// number).
Fallible<Value> calculated(BinaryOperator operation, const Value& left, const Value& right);

/// `left & right`: a text where the left side is one, a record where both are, else a list. Lists become text
/// with the delimiter between their items. Fails with -108 where the result would be too large.
Fallible<Value> joined(const Value& left, const Value& right, std::string_view delimiter);

Fallible<Value> negated(const Value& value);

}  // namespace script

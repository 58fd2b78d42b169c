// SPDX-License-Identifier: MIT
#pragma once

#include "platform/script/values/TextRules.h"
#include "platform/script/values/Value.h"

namespace script {

enum class Ordering : std::uint8_t { less, lessOrEqual, greater, greaterOrEqual };

/// No coercion except whole numbers with reals; lists and records by content. Fails with -1712 where lists
/// hold so much that it would take too long, with -2706 where they are nested too deeply.
Fallible<Value> areEqual(const Value& left, const Value& right, const TextRules& rules);

/// The right side becomes what the left one is. Numbers, texts and dates have an order; all else fails with
/// -1700.
Fallible<Value> isOrdered(const Value& left, Ordering ordering, const Value& right, const TextRules& rules);

enum class Containment : std::uint8_t { contains, startsWith, endsWith };

/// Lists hold sublists, texts texts, records records.
Fallible<Value> holds(const Value& whole, Containment containment, const Value& part, const TextRules& rules);

}  // namespace script

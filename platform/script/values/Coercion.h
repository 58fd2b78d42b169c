// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/script/values/Value.h"

/// Values as other types. Empty where the value cannot be one. A list of one item is whatever the item is.
namespace script {

/// The most bytes that a text that a script makes may have, the most items of a list, and the most properties
/// of a record, which are looked up one after another.
inline constexpr std::size_t maxTextSize = 16U << 20U;
inline constexpr std::size_t maxListItems = 100000;
inline constexpr std::size_t maxFields = 1000;

/// "A list holds at most 100000 items." (-108)
Failure tooManyItems();

/// Numbers, texts that read as a number, and months and weekdays by their place in the year or week.
std::optional<double> numberOf(const Value& value);

/// Numbers likewise, rounded with halves away from zero; 32 bits at most.
std::optional<std::int32_t> integerOf(const Value& value);

/// A number as a value: whole if it is meant to be whole and within maxInteger.
Value numberValue(double number, bool whole);

/// What a condition may be: true, false, 1 and 0.
std::optional<bool> conditionOf(const Value& value);

/// Numbers, constants by their names, lists with their items one behind the other, the delimiter between.
/// Fails with -1700 for records, references that lead nowhere and targets.
Fallible<std::string> textOf(const Value& value, std::string_view delimiter = "");

/// The items of a list, the values of a record; another value is its own only item.
List itemsOf(const Value& value);

/// What stands behind a reference; the value itself if it is none.
Fallible<Value> resolved(Value value);

/// `value as TYPE`. Fails with -1700.
Fallible<Value> coerced(const Value& value, Type type, std::string_view delimiter);

/// What `class of` gives.
Type typeOf(const Value& value);

}  // namespace script

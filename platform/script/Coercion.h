// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/script/Value.h"

/// Values as other types. Empty where the value cannot be one. A list of one item is whatever the item is.
namespace script {

/// Numbers, and texts that read as a number.
std::optional<double> numberOf(const Value& value);

/// Numbers likewise, rounded with halves away from zero; 32 bits at most.
std::optional<std::int32_t> integerOf(const Value& value);

/// Numbers, constants by their names, lists with their items side by side.
std::string textOf(const Value& value);

/// The items of a list; another value is its own only item.
List itemsOf(Value value);

/// A real as text: at least one decimal, up to 12 digits, with an exponent from 10000 up and from 0.0001 down
/// (1.231654E+4).
std::string realText(double value);

/// As a script would spell it, for messages: texts in quotes, lists in braces.
std::string spelled(const Value& value);

/// "Can’t make VALUE into type TYPE." (-1700)
Failure cannotMake(const Value& value, std::string_view type);

}  // namespace script

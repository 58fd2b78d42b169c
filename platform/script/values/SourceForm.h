// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/script/values/Value.h"

namespace script {

/// A real as text: at least one decimal, up to 12 digits, with an exponent from 10000 up and from 0.0001 down
/// (1.231654E+4).
std::string realText(double value);

/// The name of a constant: "command down", "January".
std::string constantText(const Modifier& constant);
std::string constantText(const CalendarName& constant);

/// As a script would spell it, for results: texts in quotes, lists in braces. What is longer than a few
/// thousand bytes, or nested some hundred times, is cut off with "…".
std::string sourceForm(const Value& value);

/// Likewise for messages, cut off behind 200 bytes: people read what is wrong, and not all of the value.
std::string quotedForm(const Value& value);

/// As spelled in front of its container: "item 2", "text 2 thru 3", "some word".
std::string sourceForm(const Element& element);

/// What is wrong without further words: standardMessage(number).
Failure standardFailure(int number);

/// "Can’t make VALUE into type TYPE." (-1700)
Failure cannotMake(const Value& value, Sentence type);

/// "Can’t get WHAT." (-1728)
Failure cannotGet(std::string what);

/// "Can’t set WHAT to VALUE." (-10006)
Failure cannotSet(std::string what, const Value& value);

}  // namespace script

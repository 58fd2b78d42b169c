// SPDX-License-Identifier: MIT
#include "platform/script/values/Arithmetic.h"

#include <cmath>
#include <optional>
#include <utility>

#include "platform/Sentence.h"
#include "platform/script/source/ScriptError.h"
#include "platform/script/values/Coercion.h"
#include "platform/script/values/Dates.h"
#include "platform/script/values/SourceForm.h"

namespace script {
namespace {

/// A number with its class: a text is whole if it reads as a whole number.
struct Number {
    double value = 0;
    bool whole = false;
};

Failure tooLarge() { return standardFailure(errornumber::tooLarge); }

std::optional<Number> numeric(const Value& value) {
    const std::optional<double> number = numberOf(value);
    if (!number) return std::nullopt;
    const List* list = value.list();
    if (list != nullptr) return numeric(list->front());
    const std::string_view* text = value.text();
    const bool wholeText = text != nullptr && text->find_first_of(".eE") == std::string::npos;
    return Number{*number, wholeText || value.is<std::int64_t>() || value.is<CalendarName>()};
}

/// A result; a whole one that is out of range is a real.
Fallible<Value> result(double value, bool whole) {
    if (!std::isfinite(value)) return tooLarge();
    return numberValue(value, whole);
}

bool divides(BinaryOperator operation) {
    return operation == BinaryOperator::over || operation == BinaryOperator::div ||
           operation == BinaryOperator::mod;
}

/// Whole numbers are below 2^53, so that doubles carry them exactly.
Fallible<Value> calculate(BinaryOperator operation, Number left, Number right) {
    const bool whole = left.whole && right.whole;
    switch (operation) {
        case BinaryOperator::plus:
            return result(left.value + right.value, whole);
        case BinaryOperator::minus:
            return result(left.value - right.value, whole);
        case BinaryOperator::times:
            return result(left.value * right.value, whole);
        case BinaryOperator::over:
            return result(left.value / right.value, false);
        case BinaryOperator::div:
            return result(std::trunc(left.value / right.value), true);
        case BinaryOperator::mod:
            return result(std::fmod(left.value, right.value), whole);
        default:
            return result(std::pow(left.value, right.value), false);
    }
}

/// Whether there is such a number, however large: zero has no negative powers, and negative numbers have
/// whole ones only.
bool hasPower(double base, double exponent) {
    if (base == 0) return exponent >= 0;
    return base > 0 || exponent == std::trunc(exponent);
}

Fallible<Value> joinedText(const Text& text, const Value& right, std::string_view delimiter) {
    std::string_view addition;
    Fallible<std::string> made("");
    if (const std::string_view* plain = right.text()) {
        addition = *plain;
    } else {
        made = textOf(right, delimiter);
        if (!made) return std::move(made).error();
        addition = made.value();
    }
    if (text.str().size() + addition.size() > maxTextSize) return standardFailure(errornumber::outOfMemory);
    return Value{text.with(addition)};
}

/// What both have is taken from the left one.
Fallible<Value> joinedRecord(const RecordBody& left, RecordBody& right) {
    const auto both = makeShared<RecordBody>(left.fields);
    for (const Field& field : right.fields) {
        if (both->find(*field.name) == nullptr) both->add(field);
    }
    if (both->fields.size() > maxFields) return standardFailure(errornumber::outOfMemory);
    return Value{both};
}

/// A date and seconds, or the seconds between two dates; empty where no date is calculated with.
std::optional<Fallible<Value>> calculatedDate(BinaryOperator operation, const Value& left,
                                              const Value& right) {
    const DateBody* date = left.date();
    const bool adds = operation == BinaryOperator::plus;
    if (date == nullptr || (!adds && operation != BinaryOperator::minus)) return std::nullopt;
    if (!adds && right.date() != nullptr) {
        return numberValue(static_cast<double>(date->seconds - right.date()->seconds), true);
    }
    const std::optional<double> seconds = numberOf(right);
    if (!seconds) return cannotMake(right, "number");
    constexpr double longest = 1e12;
    if (std::abs(*seconds) > longest) return tooLarge();
    const std::int64_t moment = date->seconds + std::llround(adds ? *seconds : -*seconds);
    if (!isMoment(moment)) return tooLarge();
    return Value{makeShared<DateBody>(moment)};
}

}  // namespace

Fallible<Value> calculated(BinaryOperator operation, const Value& left, const Value& right) {
    const auto* one = left.as<std::int64_t>();
    const auto* other = right.as<std::int64_t>();
    // What nearly all calculations are.
    if (one != nullptr && other != nullptr && operation == BinaryOperator::plus) {
        return numberValue(static_cast<double>(*one + *other), true);
    }
    if (auto date = calculatedDate(operation, left, right)) return *std::move(date);
    const std::optional<Number> leftNumber = numeric(left);
    if (!leftNumber) return cannotMake(left, "number");
    const std::optional<Number> rightNumber = numeric(right);
    if (!rightNumber) return cannotMake(right, "number");
    if (divides(operation) && rightNumber->value == 0) {
        return Failure{errornumber::divisionByZero,
                       sentence("ScriptErrors", "Can’t divide %1 by zero.").arg(quotedForm(left))};
    }
    if (operation == BinaryOperator::power && !hasPower(leftNumber->value, rightNumber->value)) {
        return Failure{errornumber::tooLarge,
                       sentence("ScriptErrors", "Can’t raise %1 to the power of %2: the result is no number.")
                           .arg(quotedForm(left))
                           .arg(quotedForm(right))};
    }
    return calculate(operation, *leftNumber, *rightNumber);
}

Fallible<Value> joined(const Value& left, const Value& right, std::string_view delimiter) {
    if (const auto* text = left.as<Text>()) return joinedText(*text, right, delimiter);
    if (left.record() != nullptr && right.record() != nullptr)
        return joinedRecord(*left.record(), *right.record());
    List items = itemsOf(left);
    const List additions = itemsOf(right);
    if (items.size() + additions.size() > maxListItems) return tooManyItems();
    items.append(additions.begin(), additions.end());
    return Value{std::move(items)};
}

Fallible<Value> negated(const Value& value) {
    const std::optional<Number> number = numeric(value);
    if (!number) return cannotMake(value, "number");
    return result(-number->value, number->whole);
}

}  // namespace script

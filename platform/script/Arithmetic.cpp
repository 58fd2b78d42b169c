// SPDX-License-Identifier: MIT
#include "platform/script/Arithmetic.h"

#include <cmath>
#include <optional>
#include <utility>

#include "platform/script/Coercion.h"
#include "platform/script/ExpressionParser.h"
#include "platform/script/Node.h"
#include "platform/script/ScriptError.h"

namespace script {
namespace {

/// A number with its class: a text is whole if it reads as a whole number.
struct Number {
    double value = 0;
    bool whole = false;
};

Failure tooLarge() { return {errornumber::tooLarge, "The result of a numeric operation was too large."}; }

std::optional<Number> numeric(const Value& value) {
    const std::optional<double> number = numberOf(value);
    if (!number) return std::nullopt;
    if (const auto* list = value.as<List>()) return numeric(list->front());
    const auto* text = value.as<std::string>();
    const bool wholeText = text != nullptr && text->find_first_of(".eE") == std::string::npos;
    return Number{*number, wholeText || value.as<std::int64_t>() != nullptr};
}

/// A result; a whole one that is out of range is a real.
Fallible<Value> result(double value, bool whole) {
    if (!std::isfinite(value)) return tooLarge();
    if (whole && std::abs(value) <= static_cast<double>(maxInteger))
        return Value{static_cast<std::int64_t>(value)};
    return Value{value};
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

Fallible<Value> joinedText(std::string text, const std::string& addition) {
    if (text.size() + addition.size() > maxTextSize) return tooLarge();
    return Value{std::move(text += addition)};
}

Fallible<Value> joined(Value left, const Value& right) {
    if (left.as<std::string>() != nullptr) {
        return joinedText(std::get<std::string>(std::move(left.content)), textOf(right));
    }
    List items = itemsOf(std::move(left));
    const List additions = itemsOf(right);
    if (items.size() + additions.size() > maxListItems) return tooLarge();
    items.insert(items.end(), additions.begin(), additions.end());
    return Value{std::move(items)};
}

}  // namespace

Fallible<Value> evaluate(BinaryOperator operation, Value left, const Value& right) {
    if (operation == BinaryOperator::join) return joined(std::move(left), right);
    const std::optional<Number> leftNumber = numeric(left);
    if (!leftNumber) return cannotMake(left, "number");
    const std::optional<Number> rightNumber = numeric(right);
    if (!rightNumber) return cannotMake(right, "number");
    if (divides(operation) && rightNumber->value == 0) {
        return Failure{errornumber::divisionByZero, "Can’t divide " + spelled(left) + " by zero."};
    }
    return calculate(operation, *leftNumber, *rightNumber);
}

Fallible<Value> negated(const Value& value) {
    const std::optional<Number> number = numeric(value);
    if (!number) return cannotMake(value, "number");
    return result(-number->value, number->whole);
}

}  // namespace script

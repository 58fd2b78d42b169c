// SPDX-License-Identifier: MIT
#include "platform/script/values/Coercion.h"

#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include "platform/Sentence.h"
#include "platform/script/source/Literal.h"
#include "platform/script/source/ScriptError.h"
#include "platform/script/values/Dates.h"
#include "platform/script/values/Elements.h"
#include "platform/script/values/MaxInteger.h"
#include "platform/script/values/SourceForm.h"

namespace script {
namespace {

/// The text of values one behind the other. Lists nest, hold each other and themselves: depth, steps and size
/// are bounded.
class Joiner {
  public:
    explicit Joiner(std::string_view delimiter) : m_delimiter(delimiter) {}

    bool add(const Value& value) {
        if (++m_steps > maxSteps || m_out.size() > maxTextSize)
            return fail(standardFailure(errornumber::outOfMemory));
        if (const List* list = value.list()) return addItems(*list);
        if (value.reference() != nullptr) return addReferenced(value);
        std::optional<std::string> text = simpleText(value);
        if (!text) return fail(cannotMake(value, "text"));
        m_out += *text;
        return true;
    }

    Fallible<std::string> take() {
        if (m_failure.number != 0) return std::move(m_failure);
        if (m_out.size() > maxTextSize) return standardFailure(errornumber::outOfMemory);
        return std::move(m_out);
    }

  private:
    static constexpr std::size_t maxSteps = 4000000;
    static constexpr int maxDepth = 500;

    bool fail(Failure failure) {
        m_failure = std::move(failure);
        return false;
    }

    bool addItems(const List& list) {
        if (++m_depth > maxDepth) return fail(standardFailure(errornumber::stackOverflow));
        bool isFirst = true;
        for (const Value& item : list) {
            if (!std::exchange(isFirst, false)) m_out += m_delimiter;
            if (!add(item)) return false;
        }
        --m_depth;
        return true;
    }

    bool addReferenced(const Value& value) {
        if (++m_depth > maxDepth) return fail(standardFailure(errornumber::stackOverflow));
        Fallible<Value> found = resolved(value);
        if (!found) return fail(std::move(found).error());
        const bool added = add(found.value());
        --m_depth;
        return added;
    }

    static std::optional<std::string> simpleText(const Value& value) {
        if (const std::string_view* text = value.text()) return std::string(*text);
        if (const auto* integer = value.as<std::int64_t>()) return std::to_string(*integer);
        if (const auto* real = value.as<double>()) return realText(*real);
        if (const auto* truth = value.as<bool>()) return *truth ? "true" : "false";
        if (const auto* modifier = value.as<Modifier>()) return constantText(*modifier);
        if (const auto* name = value.as<CalendarName>()) return constantText(*name);
        if (const auto* type = value.as<Type>()) return std::string(typeName(*type));
        if (const DateBody* date = value.date()) return dateText(date->seconds);
        if (value.is<Missing>()) return "missing value";
        return std::nullopt;
    }

    std::string_view m_delimiter;
    std::string m_out;
    std::size_t m_steps = 0;
    int m_depth = 0;
    Failure m_failure;
};

std::optional<Value> asBoolean(const Value& value) {
    if (const auto* truth = value.as<bool>()) return Value{*truth};
    if (const std::string_view* text = value.text()) return Value{asciiLowered(*text) == "true"};
    const auto condition = conditionOf(value);
    return condition ? std::optional<Value>(Value{*condition}) : std::nullopt;
}

std::optional<double> numberOrTruth(const Value& value) {
    if (const auto* truth = value.as<bool>()) return *truth ? 1 : 0;
    return numberOf(value);
}

std::optional<Value> asInteger(const Value& value) {
    const std::optional<double> number = numberOrTruth(value);
    if (!number || !integerOf(Value{*number})) return std::nullopt;
    return numberValue(std::round(*number), true);
}

std::optional<Value> asNumber(const Value& value, Type type) {
    const List* list = value.list();
    if (list != nullptr && list->size() == 1 && list->front().list() == nullptr) {
        return asNumber(list->front(), type);
    }
    const std::optional<double> number = numberOrTruth(value);
    if (!number) return std::nullopt;
    if (type == Type::real) return Value{*number};
    const std::string_view* text = value.text();
    const bool whole =
        text == nullptr ? !value.is<double>() : text->find_first_of(".eE") == std::string::npos;
    return numberValue(*number, whole);
}

std::optional<Value> asDate(const Value& value) {
    const std::string_view* text = value.text();
    const auto moment = text == nullptr ? std::nullopt : momentInText(*text);
    if (!moment) return std::nullopt;
    return Value{makeShared<DateBody>(*moment)};
}

/// As the class of a value that is not a list.
std::optional<Value> asType(const Value& value, Type type) {
    if (typeOf(value) == type) return value;
    switch (type) {
        case Type::integer:
            return asInteger(value);
        case Type::real:
        case Type::number:
            return asNumber(value, type);
        case Type::boolean:
            return asBoolean(value);
        case Type::date:
            return asDate(value);
        case Type::list:
            return Value{itemsOf(value)};
        case Type::item:
        case Type::anything:
        case Type::reference:
            return value;
        default:
            return std::nullopt;
    }
}

}  // namespace

Failure tooManyItems() {
    return {errornumber::outOfMemory,
            sentence("ScriptErrors", "A list holds at most %1 items.").arg(std::to_string(maxListItems)),
            sentence("Hints", "Take the items in parts, or paragraphs instead of characters.")};
}

std::optional<double> numberOf(const Value& value) {
    if (const auto* integer = value.as<std::int64_t>()) return static_cast<double>(*integer);
    if (const auto* real = value.as<double>()) return *real;
    if (const auto* name = value.as<CalendarName>()) return name->number;
    if (const std::string_view* text = value.text()) return numberInText(*text);
    const List* list = value.list();
    // One level: lists may hold themselves.
    if (list != nullptr && list->size() == 1 && list->front().list() == nullptr)
        return numberOf(list->front());
    return std::nullopt;
}

std::optional<std::int32_t> integerOf(const Value& value) {
    const std::optional<double> number = numberOf(value);
    if (!number) return std::nullopt;
    const double rounded = std::round(*number);
    using Limits = std::numeric_limits<std::int32_t>;
    if (rounded < Limits::min() || rounded > Limits::max()) return std::nullopt;
    return static_cast<std::int32_t>(rounded);
}

Value numberValue(double number, bool whole) {
    if (whole && std::abs(number) <= static_cast<double>(maxInteger)) {
        return Value{static_cast<std::int64_t>(number)};
    }
    return Value{number};
}

std::optional<bool> conditionOf(const Value& value) {
    if (const auto* truth = value.as<bool>()) return *truth;
    const auto* integer = value.as<std::int64_t>();
    if (integer != nullptr && (*integer == 0 || *integer == 1)) return *integer == 1;
    return std::nullopt;
}

Fallible<std::string> textOf(const Value& value, std::string_view delimiter) {
    if (const std::string_view* text = value.text()) return std::string(*text);
    Joiner joiner(delimiter);
    joiner.add(value);
    return joiner.take();
}

List itemsOf(const Value& value) {
    if (const List* list = value.list()) return *list;
    List items;
    if (const RecordBody* record = value.record()) {
        for (const Field& field : record->fields) items.push_back(field.value);
    } else {
        items.push_back(value);
    }
    return items;
}

Fallible<Value> resolved(Value value) {
    constexpr int maxDepth = 100;
    for (int depth = 0; value.reference() != nullptr; ++depth) {
        if (depth == maxDepth) return standardFailure(errornumber::stackOverflow);
        const ReferenceBody& reference = *value.reference();
        if (const CellBody* cell = reference.container.cell()) {
            if (cell->content.is<Nothing>()) {
                return Failure{errornumber::noSuchObject,
                               sentence("ScriptErrors", "Can’t get contents of a variable that is not set.")};
            }
            value = Value(cell->content);
            continue;
        }
        Fallible<Value> container = resolved(reference.container);
        if (!container) return container;
        Fallible<Value> found = elementOf(container.value(), reference.element, TextRules());
        if (!found) return found;
        value = std::move(found).value();
    }
    return value;
}

Fallible<Value> coerced(const Value& value, Type type, std::string_view delimiter) {
    if (type == Type::text) {
        Fallible<std::string> text = textOf(value, delimiter);
        if (!text) {
            const bool isWrongType = text.error().number == errornumber::cannotCoerce;
            return isWrongType ? cannotMake(value, "text") : std::move(text).error();
        }
        return Value{std::move(text).value()};
    }
    if (std::optional<Value> found = asType(value, type)) return *std::move(found);
    const List* list = value.list();
    if (list != nullptr && list->size() == 1 && list->front().list() == nullptr) {
        if (std::optional<Value> found = asType(list->front(), type)) return *std::move(found);
    }
    return cannotMake(value, typeName(type));
}

Type typeOf(const Value& value) {
    constexpr std::array<Type, 15> types{Type::anything,  Type::classType, Type::boolean,  Type::integer,
                                         Type::real,      Type::text,      Type::constant, Type::month,
                                         Type::classType, Type::list,      Type::record,   Type::date,
                                         Type::reference, Type::script,    Type::reference};
    if (const auto* name = value.as<CalendarName>()) {
        return name->kind == CalendarName::Kind::month ? Type::month : Type::weekday;
    }
    if (const TargetBody* target = value.target()) {
        if (target->kind == TargetBody::Kind::script) return Type::script;
        return target->kind == TargetBody::Kind::process ? Type::process : Type::application;
    }
    return types[value.content.index()];
}

}  // namespace script

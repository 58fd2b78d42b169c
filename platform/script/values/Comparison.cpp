// SPDX-License-Identifier: MIT
#include "platform/script/values/Comparison.h"

#include <algorithm>
#include <optional>

#include "platform/script/source/ScriptError.h"
#include "platform/script/values/Coercion.h"
#include "platform/script/values/SourceForm.h"

namespace script {
namespace {

/// Compares by content, within bounds of depth and steps: lists may hold each other and themselves.
class Equality {
  public:
    explicit Equality(const TextRules& rules) : m_rules(rules) {}

    bool operator()(const Value& left, const Value& right) {
        if (m_failure.number != 0 || ++m_steps > maxSteps) {
            if (m_failure.number == 0) m_failure = standardFailure(errornumber::timedOut);
            return false;
        }
        if (isNumber(left) && isNumber(right)) return *numberOf(left) == *numberOf(right);
        if (left.content.index() != right.content.index()) return false;
        return equalContents(left, right);
    }

    /// The answer, or why there is none.
    Fallible<Value> answer(bool equal) const {
        if (m_failure.number != 0) return m_failure;
        return Value{equal};
    }

  private:
    static constexpr std::size_t maxSteps = 4000000;
    static constexpr int maxDepth = 500;

    static bool isNumber(const Value& value) { return value.is<std::int64_t>() || value.is<double>(); }

    bool equalContents(const Value& left, const Value& right) {
        if (const std::string_view* text = left.text()) {
            m_steps += text->size() / 16;
            return compareTexts(*text, *right.text(), m_rules) == 0;
        }
        if (left.list() != nullptr) return descend([&] { return equalLists(*left.list(), *right.list()); });
        if (left.record() != nullptr) {
            return descend([&] { return equalRecords(*left.record(), *right.record()); });
        }
        if (const DateBody* date = left.date()) return date->seconds == right.date()->seconds;
        if (left.cell() != nullptr) return left.cell() == right.cell();
        if (left.reference() != nullptr) {
            return descend([&] { return equalReferences(*left.reference(), *right.reference()); });
        }
        if (const TargetBody* target = left.target()) {
            return target->kind == right.target()->kind && target->name.str() == right.target()->name.str();
        }
        return equalConstants(left, right);
    }

    static bool equalConstants(const Value& left, const Value& right) {
        if (const auto* truth = left.as<bool>()) return *truth == *right.as<bool>();
        if (const auto* modifier = left.as<Modifier>()) return *modifier == *right.as<Modifier>();
        if (const auto* name = left.as<CalendarName>()) return *name == *right.as<CalendarName>();
        if (const auto* type = left.as<Type>()) return *type == *right.as<Type>();
        return true;
    }

    template <typename Step>
    bool descend(const Step& step) {
        if (++m_depth > maxDepth && m_failure.number == 0) {
            m_failure = standardFailure(errornumber::stackOverflow);
        }
        const bool equal = m_failure.number == 0 && step();
        --m_depth;
        return equal;
    }

    bool equalLists(const List& left, const List& right) {
        return &left == &right ||
               std::equal(left.begin(), left.end(), right.begin(), right.end(),
                          [this](const Value& one, const Value& other) { return (*this)(one, other); });
    }

    bool equalRecords(RecordBody& left, RecordBody& right) {
        if (left.fields.size() != right.fields.size()) return false;
        return std::all_of(left.fields.begin(), left.fields.end(), [&](const Field& field) {
            const Value* other = right.find(*field.name);
            return other != nullptr && (*this)(field.value, *other);
        });
    }

    bool equalReferences(const ReferenceBody& left, const ReferenceBody& right) {
        const Element& one = left.element;
        const Element& other = right.element;
        return one.kind == other.kind && one.form == other.form && one.first == other.first &&
               one.last == other.last && (*this)(left.container, right.container);
    }

    const TextRules& m_rules;
    std::size_t m_steps = 0;
    int m_depth = 0;
    Failure m_failure;
};

bool isOrderOf(Ordering ordering, int comparison) {
    switch (ordering) {
        case Ordering::less:
            return comparison < 0;
        case Ordering::lessOrEqual:
            return comparison <= 0;
        case Ordering::greater:
            return comparison > 0;
        default:
            return comparison >= 0;
    }
}

template <typename Number>
int compareNumbers(Number left, Number right) {
    if (left == right) return 0;
    return left < right ? -1 : 1;
}

Fallible<Value> listHolds(const List& whole, Containment containment, const List& part,
                          const TextRules& rules) {
    Equality equal(rules);
    const auto same = [&](const Value& one, const Value& other) { return equal(one, other); };
    if (part.size() > whole.size()) return Value{false};
    if (containment == Containment::contains) {
        const bool found = part.empty() || std::search(whole.begin(), whole.end(), part.begin(), part.end(),
                                                       same) != whole.end();
        return equal.answer(found);
    }
    const auto first = containment == Containment::startsWith
                           ? whole.begin()
                           : whole.end() - static_cast<std::ptrdiff_t>(part.size());
    return equal.answer(std::equal(part.begin(), part.end(), first, same));
}

Fallible<Value> recordHolds(RecordBody& whole, RecordBody& part, const TextRules& rules) {
    Equality equal(rules);
    const bool all = std::all_of(part.fields.begin(), part.fields.end(), [&](const Field& field) {
        const Value* found = whole.find(*field.name);
        return found != nullptr && equal(*found, field.value);
    });
    return equal.answer(all);
}

bool textHolds(std::string_view whole, Containment containment, std::string_view part,
               const TextRules& rules) {
    switch (containment) {
        case Containment::contains:
            return findText(whole, part, 0, rules).has_value();
        case Containment::startsWith:
            return textStartsWith(whole, part, rules);
        default:
            return textEndsWith(whole, part, rules);
    }
}

}  // namespace

Fallible<Value> areEqual(const Value& left, const Value& right, const TextRules& rules) {
    Equality equal(rules);
    const bool same = equal(left, right);
    return equal.answer(same);
}

Fallible<Value> isOrdered(const Value& left, Ordering ordering, const Value& right, const TextRules& rules) {
    if (const std::string_view* text = left.text()) {
        const Fallible<std::string> other = textOf(right);
        if (!other) return cannotMake(right, "text");
        return Value{isOrderOf(ordering, compareTexts(*text, other.value(), rules))};
    }
    if (const DateBody* date = left.date()) {
        if (right.date() == nullptr) return cannotMake(right, "date");
        return Value{isOrderOf(ordering, compareNumbers(date->seconds, right.date()->seconds))};
    }
    const bool isNumber = left.is<std::int64_t>() || left.is<double>();
    if (!isNumber) return cannotMake(left, "number");
    const std::optional<double> other = numberOf(right);
    if (!other) return cannotMake(right, "number");
    return Value{isOrderOf(ordering, compareNumbers(*numberOf(left), *other))};
}

Fallible<Value> holds(const Value& whole, Containment containment, const Value& part,
                      const TextRules& rules) {
    if (const List* list = whole.list()) {
        const List* sublist = part.list();
        return listHolds(*list, containment, sublist == nullptr ? List{part} : *sublist, rules);
    }
    if (whole.record() != nullptr && containment == Containment::contains) {
        if (part.record() == nullptr) return cannotMake(part, "record");
        return recordHolds(*whole.record(), *part.record(), rules);
    }
    const std::string_view* text = whole.text();
    if (text == nullptr) return cannotMake(whole, "list");
    const Fallible<std::string> other = textOf(part);
    if (!other) return cannotMake(part, "text");
    return Value{textHolds(*text, containment, other.value(), rules)};
}

}  // namespace script

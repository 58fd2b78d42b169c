// SPDX-License-Identifier: MIT
#include "platform/script/values/Properties.h"

#include <algorithm>
#include <array>
#include <optional>

#include "platform/Utf8.h"
#include "platform/script/source/Wording.h"
#include "platform/script/values/Coercion.h"
#include "platform/script/values/Dates.h"
#include "platform/script/values/Elements.h"
#include "platform/script/values/SourceForm.h"

namespace script {
namespace {

using Found = std::optional<Value>;

Value whole(std::int64_t number) { return Value{number}; }

Found ofList(const List& list, const Name& name) {
    if (&name == &names::length) return whole(static_cast<std::int64_t>(list.size()));
    if (&name == &names::reverse) return Value{List(list.rbegin(), list.rend())};
    if (&name == &names::rest) return Value{list.empty() ? List() : List(list.begin() + 1, list.end())};
    if (list.empty()) return std::nullopt;
    if (&name == &names::beginning) return list.front();
    if (&name == &names::end) return list.back();
    return std::nullopt;
}

/// The code points of the characters of a text, or the one of its only character.
Fallible<Value> idOf(std::string_view text) {
    List points;
    for (std::size_t position = 0; position < text.size();) {
        if (points.size() == maxListItems) return tooManyItems();
        points.push_back(whole(takeCharacter(text, position)));
    }
    if (points.size() == 1) return points.front();
    return Value{std::move(points)};
}

Found ofText(const Value& value, const Name& name) {
    if (&name == &names::length) {
        const auto count = countElements(value, {ElementKind::character}, TextRules());
        return whole(static_cast<std::int64_t>(count.value_or(0)));
    }
    if (&name == &names::textProperty) return value;
    return std::nullopt;
}

Found ofDate(std::int64_t moment, const Name& name) {
    const CalendarParts parts = partsOf(moment);
    if (&name == &names::year) return whole(parts.year);
    if (&name == &names::month) {
        return Value{CalendarName{CalendarName::Kind::month, static_cast<std::uint8_t>(parts.month)}};
    }
    if (&name == &names::day) return whole(parts.day);
    if (&name == &names::weekday) return Value{CalendarName{CalendarName::Kind::weekday, weekdayOf(moment)}};
    if (&name == &names::hours) return whole(parts.hours);
    if (&name == &names::minutes) return whole(parts.minutes);
    if (&name == &names::seconds) return whole(parts.seconds);
    if (&name == &names::time) return whole(parts.hours * 3600 + parts.minutes * 60 + parts.seconds);
    if (&name == &names::dateString) return Value{dateOnlyText(moment)};
    if (&name == &names::shortDateString) return Value{shortDateText(moment)};
    if (&name == &names::timeString) return Value{timeOnlyText(moment)};
    return std::nullopt;
}

Found find(const Value& container, const Name& name) {
    if (RecordBody* record = container.record()) {
        if (const Value* field = record->find(name)) return *field;
        if (&name == &names::length) return whole(static_cast<std::int64_t>(record->fields.size()));
    }
    if (&name == &names::classProperty) return Value{typeOf(container)};
    if (const List* list = container.list()) return ofList(*list, name);
    if (container.text() != nullptr) return ofText(container, name);
    if (const DateBody* date = container.date()) return ofDate(date->seconds, name);
    const TargetBody* target = container.target();
    if (target != nullptr && &name == &names::nameProperty && target->kind != TargetBody::Kind::script) {
        return Value{target->name};
    }
    return std::nullopt;
}

struct DatePart {
    const Name* name;
    std::int64_t CalendarParts::*part;
};

constexpr std::array<DatePart, 6> dateParts{{{&names::year, &CalendarParts::year},
                                             {&names::month, &CalendarParts::month},
                                             {&names::day, &CalendarParts::day},
                                             {&names::hours, &CalendarParts::hours},
                                             {&names::minutes, &CalendarParts::minutes},
                                             {&names::seconds, &CalendarParts::seconds}}};

/// False if the date has no such part, or would leave the calendar.
bool setDatePart(DateBody& date, const Name& name, std::int64_t number) {
    CalendarParts parts = partsOf(date.seconds);
    if (&name == &names::time) {
        parts.hours = 0;
        parts.minutes = 0;
        parts.seconds = number;
    } else {
        const auto* row = std::find_if(dateParts.begin(), dateParts.end(),
                                       [&](const DatePart& candidate) { return candidate.name == &name; });
        if (row == dateParts.end()) return false;
        parts.*(row->part) = number;
    }
    const std::int64_t moment = momentOf(parts);
    if (!isMoment(moment)) return false;
    date.seconds = moment;
    return true;
}

Fallible<> addToList(const Shared<ListBody>& list, bool atEnd, const Value& value) {
    if (list->items.size() >= maxListItems) return tooManyItems();
    if (atEnd) {
        list->items.push_back(value);
    } else {
        list->items.pushFront(value);
    }
    list->didChange();
    return {};
}

}  // namespace

Fallible<Value> propertyOf(const Value& container, const Name& name) {
    if (container.text() != nullptr && &name == &names::id) return idOf(*container.text());
    if (Found found = find(container, name)) return *std::move(found);
    return cannotGet(shortened(sourceForm(name)) + " of " + quotedForm(container));
}

Fallible<> setProperty(const Value& container, const Name& name, const Value& value) {
    if (RecordBody* record = container.record()) {
        if (Value* field = record->find(name)) {
            *field = value;
            return {};
        }
    }
    const bool atEnd = &name == &names::end;
    const auto* list = container.as<Shared<ListBody>>();
    if (list != nullptr && (atEnd || &name == &names::beginning)) return addToList(*list, atEnd, value);
    if (DateBody* date = container.date()) {
        const auto* month = value.as<CalendarName>();
        const std::optional<std::int32_t> number = month == nullptr ? integerOf(value) : month->number;
        if (number && setDatePart(*date, name, *number)) return {};
    }
    return cannotSet(shortened(sourceForm(name)) + " of " + quotedForm(container), value);
}

}  // namespace script

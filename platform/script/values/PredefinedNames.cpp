// SPDX-License-Identifier: MIT
#include "platform/script/values/PredefinedNames.h"

#include <array>
#include <numbers>

#include "platform/script/source/SpellingIndex.h"

namespace script {
namespace {

using Kind = PredefinedName::Kind;

constexpr auto predefinedNames = std::to_array<PredefinedName>({
    {"integer", Kind::type, Type::integer},
    {"real", Kind::type, Type::real},
    {"number", Kind::type, Type::number},
    {"text", Kind::type, Type::text},
    {"string", Kind::type, Type::text},
    {"boolean", Kind::type, Type::boolean},
    {"list", Kind::type, Type::list},
    {"record", Kind::type, Type::record},
    {"date", Kind::type, Type::date},
    {"class", Kind::type, Type::classType},
    {"constant", Kind::type, Type::constant},
    {"reference", Kind::type, Type::reference},
    {"script", Kind::type, Type::script},
    {"application", Kind::type, Type::application},
    {"process", Kind::type, Type::process},
    {"month", Kind::type, Type::month},
    {"weekday", Kind::type, Type::weekday},
    {"item", Kind::type, Type::item},
    {"minutes", Kind::integer, Type::anything, 60},
    {"hours", Kind::integer, Type::anything, 3600},
    {"days", Kind::integer, Type::anything, 86400},
    {"weeks", Kind::integer, Type::anything, 604800},
    {"pi", Kind::real},
    {"January", Kind::month, Type::anything, 1},
    {"February", Kind::month, Type::anything, 2},
    {"March", Kind::month, Type::anything, 3},
    {"April", Kind::month, Type::anything, 4},
    {"May", Kind::month, Type::anything, 5},
    {"June", Kind::month, Type::anything, 6},
    {"July", Kind::month, Type::anything, 7},
    {"August", Kind::month, Type::anything, 8},
    {"September", Kind::month, Type::anything, 9},
    {"October", Kind::month, Type::anything, 10},
    {"November", Kind::month, Type::anything, 11},
    {"December", Kind::month, Type::anything, 12},
    {"Sunday", Kind::weekday, Type::anything, 1},
    {"Monday", Kind::weekday, Type::anything, 2},
    {"Tuesday", Kind::weekday, Type::anything, 3},
    {"Wednesday", Kind::weekday, Type::anything, 4},
    {"Thursday", Kind::weekday, Type::anything, 5},
    {"Friday", Kind::weekday, Type::anything, 6},
    {"Saturday", Kind::weekday, Type::anything, 7},
});

constexpr SpellingIndex predefinedIndex(predefinedNames);

std::uint8_t indexOf(const PredefinedName& name) {
    return static_cast<std::uint8_t>(&name - predefinedNames.data());
}

}  // namespace

std::optional<std::uint8_t> findPredefinedName(const Token& identifier) {
    const PredefinedName* row = predefinedIndex.find(identifier.text, identifier.hash);
    return row == nullptr ? std::nullopt : std::optional(indexOf(*row));
}

std::uint8_t scriptClass() {
    constexpr std::string_view spelling = "script";
    return indexOf(*predefinedIndex.find(spelling, SpellingHash(spelling).value()));
}

const PredefinedName& predefinedName(std::uint8_t index) { return predefinedNames[index]; }

Value valueOf(const PredefinedName& name) {
    const auto number = static_cast<std::uint8_t>(name.number);
    switch (name.kind) {
        case Kind::integer:
            return Value{std::int64_t{name.number}};
        case Kind::real:
            return Value{std::numbers::pi};
        case Kind::month:
            return Value{CalendarName{CalendarName::Kind::month, number}};
        case Kind::weekday:
            return Value{CalendarName{CalendarName::Kind::weekday, number}};
        default:
            return Value{name.type};
    }
}

}  // namespace script

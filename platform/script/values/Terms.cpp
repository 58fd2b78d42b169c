// SPDX-License-Identifier: MIT
#include "platform/script/values/Terms.h"

#include <array>
#include <numbers>

#include "platform/script/source/SpellingIndex.h"

namespace script {
namespace {

using Kind = KnownTerm::Kind;

constexpr auto terms = std::to_array<KnownTerm>({
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

constexpr auto elementTerms = std::to_array<ElementTerm>({
    {"item", ElementKind::item, false},
    {"items", ElementKind::item, true},
    {"character", ElementKind::character, false},
    {"characters", ElementKind::character, true},
    {"word", ElementKind::word, false},
    {"words", ElementKind::word, true},
    {"paragraph", ElementKind::paragraph, false},
    {"paragraphs", ElementKind::paragraph, true},
    {"integer", ElementKind::typed, false, Type::integer},
    {"integers", ElementKind::typed, true, Type::integer},
    {"real", ElementKind::typed, false, Type::real},
    {"reals", ElementKind::typed, true, Type::real},
    {"number", ElementKind::typed, false, Type::number},
    {"numbers", ElementKind::typed, true, Type::number},
    {"string", ElementKind::typed, false, Type::text},
    {"strings", ElementKind::typed, true, Type::text},
    {"boolean", ElementKind::typed, false, Type::boolean},
    {"booleans", ElementKind::typed, true, Type::boolean},
    {"list", ElementKind::typed, false, Type::list},
    {"lists", ElementKind::typed, true, Type::list},
    {"record", ElementKind::typed, false, Type::record},
    {"records", ElementKind::typed, true, Type::record},
    {"date", ElementKind::typed, false, Type::date},
    {"dates", ElementKind::typed, true, Type::date},
});

constexpr SpellingIndex termIndex(terms);
constexpr SpellingIndex elementIndex(elementTerms);

std::uint8_t indexOf(const KnownTerm& term) { return static_cast<std::uint8_t>(&term - terms.data()); }

}  // namespace

std::optional<std::uint8_t> findTerm(const Token& identifier) {
    const KnownTerm* row = termIndex.find(identifier.text, identifier.hash);
    return row == nullptr ? std::nullopt : std::optional(indexOf(*row));
}

std::uint8_t scriptTerm() {
    constexpr std::string_view spelling = "script";
    return indexOf(*termIndex.find(spelling, SpellingHash(spelling).value()));
}

const KnownTerm& knownTerm(std::uint8_t index) { return terms[index]; }

Value valueOf(const KnownTerm& term) {
    const auto number = static_cast<std::uint8_t>(term.number);
    switch (term.kind) {
        case Kind::integer:
            return Value{std::int64_t{term.number}};
        case Kind::real:
            return Value{std::numbers::pi};
        case Kind::month:
            return Value{CalendarName{CalendarName::Kind::month, number}};
        case Kind::weekday:
            return Value{CalendarName{CalendarName::Kind::weekday, number}};
        default:
            return Value{term.type};
    }
}

const ElementTerm* findElementTerm(const Token& identifier) {
    return elementIndex.find(identifier.text, identifier.hash);
}

}  // namespace script

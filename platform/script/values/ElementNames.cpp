// SPDX-License-Identifier: MIT
#include "platform/script/values/ElementNames.h"

#include <array>

#include "platform/script/source/SpellingIndex.h"

namespace script {
namespace {

constexpr auto elementNames = std::to_array<ElementName>({
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

constexpr SpellingIndex elementIndex(elementNames);

}  // namespace

const ElementName* findElementName(const Token& identifier) {
    return elementIndex.find(identifier.text, identifier.hash);
}

}  // namespace script

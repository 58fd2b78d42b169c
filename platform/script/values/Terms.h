// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/script/source/Token.h"
#include "platform/script/values/Value.h"

namespace script {

/// A word that means a value wherever no variable has its name: a class, a number, a month, a weekday.
struct KnownTerm {
    enum class Kind : std::uint8_t { type, integer, real, month, weekday };

    std::string_view spelling;
    Kind kind = Kind::type;
    Type type = Type::anything;
    int number = 0;
};

/// The index of the term that the identifier spells; empty if it spells none.
std::optional<std::uint8_t> findTerm(const Token& identifier);
/// The index of the class `script`.
std::uint8_t scriptTerm();
const KnownTerm& knownTerm(std::uint8_t index);
Value valueOf(const KnownTerm& term);

/// A word that names elements: `item`, `words`.
struct ElementTerm {
    std::string_view spelling;
    ElementKind kind = ElementKind::item;
    bool isPlural = false;
    Type type = Type::anything;  ///< of the kind `typed`
};

/// Null if the identifier names no elements.
const ElementTerm* findElementTerm(const Token& identifier);

}  // namespace script

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/script/source/Token.h"
#include "platform/script/values/Value.h"

namespace script {

/// A word that means a value wherever no variable has its name: a class, a number, a month, a weekday.
struct PredefinedName {
    enum class Kind : std::uint8_t { type, integer, real, month, weekday };

    std::string_view spelling;
    Kind kind = Kind::type;
    Type type = Type::anything;
    int number = 0;
};

/// The index of the name that the identifier spells; empty if it spells none of these.
std::optional<std::uint8_t> findPredefinedName(const Token& identifier);
/// The index of the class `script`.
std::uint8_t scriptClass();
const PredefinedName& predefinedName(std::uint8_t index);
Value valueOf(const PredefinedName& name);

}  // namespace script

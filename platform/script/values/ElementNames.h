// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "platform/script/source/Token.h"
#include "platform/script/values/Value.h"

namespace script {

/// A word that names elements: `item`, `words`.
struct ElementName {
    std::string_view spelling;
    ElementKind kind = ElementKind::item;
    bool isPlural = false;
    Type type = Type::anything;  ///< of the kind `typed`
};

/// Null if the identifier names no elements.
const ElementName* findElementName(const Token& identifier);

}  // namespace script

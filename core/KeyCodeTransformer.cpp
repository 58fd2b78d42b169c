// SPDX-License-Identifier: MIT
#include "core/KeyCodeTransformer.h"

#include <cstdint>

#include "platform/KeyboardLayout.h"

std::string KeyCodeTransformer::transformedValue(short keyCode) const {
    return m_layout().keyName(static_cast<std::uint16_t>(keyCode));
}

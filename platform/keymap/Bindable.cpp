// SPDX-License-Identifier: MIT
#include "platform/keymap/Bindable.h"

#include <xkbcommon/xkbcommon.h>

#include "platform/Utf8.h"

bool isBindable(char32_t character) {
    const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
    return !isControlCode(character) && !isSurrogate && xkb_utf32_to_keysym(character) != XKB_KEY_NoSymbol;
}

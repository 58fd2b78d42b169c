// SPDX-License-Identifier: MIT
#include "platform/keymap/Bindable.h"

#include <xkbcommon/xkbcommon.h>

bool isBindable(char32_t character) {
    const bool isControl = character < 0x20 || (character >= 0x7F && character < 0xA0);
    const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
    return !isControl && !isSurrogate && xkb_utf32_to_keysym(character) != XKB_KEY_NoSymbol;
}

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "core/KeyToolkit.h"

class KeyCodeTransformer;

// Texts for keys and modifiers, UTF-8. "Cocoa" masks are those of `controlflag` in platform/Modifiers.h,
// "Carbon" masks those of `modifier`; bits that a mask does not define are ignored. What needs the keyboard
// layout asks the installed services for it. Main thread only.

/// The readable name of a key, never empty: letters in upper case, names or symbols for keys that type
/// nothing. The 16 bits are taken without a sign (platform/KeyCodes.h).
std::string keyNameForKeyCode(short keyCode);

/// The one transformer of the process, which names the keys; null until the first call of keyNameForKeyCode.
const KeyCodeTransformer* keyCodeTransformer();

/// "⌃⌥⇧⌘", those that are set, in this order.
std::string modifierSymbolsForCocoaFlags(std::uint32_t flags);

/// "Command + Option + Control + Shift + S": the words that are set, in this order and translated, then the
/// key's name.
std::string readableKeyString(std::uint32_t flags, short keyCode);

/// "⇧⌘S": the symbols, then the key's name.
std::string keyStringWithSymbols(std::uint32_t flags, short keyCode);

/// What the key types under the current layout with the mask's Shift and Option, capitalised; the key's name
/// where the layout cannot tell.
std::string characterForKeyCode(std::uint16_t keyCode, std::uint32_t flags);
std::string characterForKeyCodeAndCarbonFlags(std::uint16_t keyCode, std::uint32_t carbonFlags);

/// Caps Lock has no counterpart and is dropped.
std::uint32_t carbonToCocoaFlags(std::uint32_t carbonFlags);

/// The translation of `key` in the string table of that name; empty if there is none, and the key itself is
/// shown.
using StringTableLookup =
    std::function<std::optional<std::string>(const std::string& key, const std::string& table)>;

/// Who translates the modifier words (table "ShortcutRecorder"); nobody at first, or after an empty one.
void setStringTableLookup(StringTableLookup lookup);

// SPDX-License-Identifier: MIT
#include "core/KeyNames.h"

#include <array>
#include <memory>
#include <utility>

#include "core/KeyCodeTransformer.h"
#include "platform/KeyboardLayout.h"
#include "platform/Modifiers.h"
#include "platform/Services.h"

namespace {

struct FlagText {
    std::uint32_t flag;
    const char* text;
};

/// The texts of the flags that are set, in the table's order.
template <std::size_t size, typename Translate>
std::string textsOf(const std::array<FlagText, size>& table, std::uint32_t flags, Translate translate) {
    std::string result;
    for (const FlagText& row : table) {
        if ((flags & row.flag) != 0) result += translate(row.text);
    }
    return result;
}

/// Empty until the first name is asked for, then filled for good.
std::unique_ptr<const KeyCodeTransformer>& transformerSlot() {
    static std::unique_ptr<const KeyCodeTransformer> transformer;
    return transformer;
}

StringTableLookup& stringTable() {
    static StringTableLookup lookup;
    return lookup;
}

std::string translated(const std::string& key) {
    const StringTableLookup& lookup = stringTable();
    return lookup ? lookup(key, "ShortcutRecorder").value_or(key) : key;
}

}  // namespace

std::string keyNameForKeyCode(short keyCode) {
    auto& transformer = transformerSlot();
    if (!transformer) {
        transformer = std::make_unique<const KeyCodeTransformer>(
            []() -> const KeyboardLayout& { return services().keyboardLayout; });
    }
    return transformer->transformedValue(keyCode);
}

const KeyCodeTransformer* keyCodeTransformer() { return transformerSlot().get(); }

std::string modifierSymbolsForCocoaFlags(std::uint32_t flags) {
    static constexpr std::array<FlagText, 4> symbols = {{{controlflag::control, "⌃"},
                                                         {controlflag::option, "⌥"},
                                                         {controlflag::shift, "⇧"},
                                                         {controlflag::command, "⌘"}}};
    return textsOf(symbols, flags, [](const char* symbol) { return symbol; });
}

std::string readableKeyString(std::uint32_t flags, short keyCode) {
    static constexpr std::array<FlagText, 4> words = {{{controlflag::command, "Command + "},
                                                       {controlflag::option, "Option + "},
                                                       {controlflag::control, "Control + "},
                                                       {controlflag::shift, "Shift + "}}};
    return textsOf(words, flags, translated) + keyNameForKeyCode(keyCode);
}

std::string keyStringWithSymbols(std::uint32_t flags, short keyCode) {
    return modifierSymbolsForCocoaFlags(flags) + keyNameForKeyCode(keyCode);
}

std::string characterForKeyCode(std::uint16_t keyCode, std::uint32_t flags) {
    const bool shift = (flags & controlflag::shift) != 0;
    const bool option = (flags & controlflag::option) != 0;
    const auto character = services().keyboardLayout.character(keyCode, shift, option);
    return character ? character.value() : keyNameForKeyCode(static_cast<short>(keyCode));
}

std::string characterForKeyCodeAndCarbonFlags(std::uint16_t keyCode, std::uint32_t carbonFlags) {
    return characterForKeyCode(keyCode, carbonToCocoaFlags(carbonFlags));
}

std::uint32_t carbonToCocoaFlags(std::uint32_t carbonFlags) {
    std::uint32_t flags = 0;
    for (const ModifierPair& pair : modifierPairs) {
        if ((carbonFlags & pair.modifier) != 0) flags |= pair.controlFlag;
    }
    return flags;
}

void setStringTableLookup(StringTableLookup lookup) { stringTable() = std::move(lookup); }

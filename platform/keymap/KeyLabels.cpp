// SPDX-License-Identifier: MIT
#include "platform/keymap/KeyLabels.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string_view>

#include "platform/KeyCodes.h"
#include "platform/keymap/LabelTables.h"

namespace {

/// Control characters, blanks and invisible marks would leave a label empty to the eye.
bool isPrintable(std::uint32_t character) {
    constexpr std::uint32_t firstAfterLatinBlanks = 0xA1;
    if (character > ' ' && character < 0x7F) return true;
    if (character < firstAfterLatinBlanks || character == 0xAD) return false;
    return !(character >= 0x2000 && character <= 0x200F) && !(character >= 0x2028 && character <= 0x202F) &&
           character != 0x205F && character != 0x2060 && character != 0x3000 && character != 0xFEFF;
}

std::string utf8(xkb_keysym_t symbol) {
    std::array<char, 8> text{};
    const int size = xkb_keysym_to_utf8(symbol, text.data(), text.size());
    return size > 1 ? std::string(text.data()) : std::string();
}

/// What a symbol types, in upper case; dead keys by their spacing form.
std::string printed(xkb_keysym_t symbol) {
    if (const char* spacing = labels::deadKey(symbol)) return spacing;
    if (!isPrintable(xkb_keysym_to_utf32(symbol))) return {};
    return utf8(xkb_keysym_to_upper(symbol));
}

/// "XF86AudioRaiseVolume" as "Audio Raise Volume", "ISO_Next_Group" as "ISO Next Group".
std::string wordsOf(std::string_view name) {
    constexpr std::string_view vendor = "XF86";
    if (name.starts_with(vendor)) name.remove_prefix(vendor.size());
    const auto isUpper = [](char c) { return std::isupper(static_cast<unsigned char>(c)) != 0; };
    std::string words;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const bool startsWord = i > 0 && isUpper(name[i]) && !isUpper(name[i - 1]) && name[i - 1] != '_';
        if (startsWord) words += ' ';
        words += name[i] == '_' ? ' ' : name[i];
    }
    return words;
}

std::string nameOfSymbol(xkb_keysym_t symbol) {
    if (symbol == XKB_KEY_NoSymbol || symbol == XKB_KEY_VoidSymbol) return {};
    if (const char* name = labels::symbol(symbol)) return name;
    std::array<char, 64> name{};
    const int size = xkb_keysym_get_name(symbol, name.data(), name.size());
    return size > 0 ? wordsOf(name.data()) : std::string();
}

/// A label where the keymap says nothing: the position.
std::string nameOfPosition(std::uint32_t baseCode) {
    if (const char* name = labels::position(baseCode)) return name;
    return "Key " + std::to_string(baseCode);
}

bool isKeypadSymbol(xkb_keysym_t symbol) { return symbol >= XKB_KEY_KP_Space && symbol <= XKB_KEY_KP_Equal; }

struct Key {
    std::uint32_t baseCode;
    std::uint8_t keycode;
    xkb_mod_mask_t choosers;
};

Key keyOf(const Keymap& keymap, std::uint32_t keyCode) {
    const std::uint32_t baseCode = keycode::baseOf(keyCode);
    return {baseCode, keymap.keycodeFor(baseCode), keymap.realChoosers(keyCode)};
}

std::string labelAt(const Keymap& keymap, xkb_layout_index_t layout, const Key& key,
                    xkb_mod_mask_t modifiers) {
    const xkb_mod_mask_t digits = keycode::isKeypadDigit(key.baseCode) ? keymap.masks().numLock : 0;
    const xkb_keysym_t symbol = keymap.symbol(key.keycode, modifiers | digits, layout);
    const std::string text = printed(symbol);
    if (text.empty()) return nameOfSymbol(symbol);
    return isKeypadSymbol(symbol) || digits != 0 ? "Pad " + text : text;
}

}  // namespace

std::string keyLabel(const Keymap& keymap, xkb_layout_index_t inForce, std::uint32_t keyCode) {
    const Key key = keyOf(keymap, keyCode);
    const xkb_layout_index_t layout = keycode::layoutOf(keyCode).value_or(inForce);
    if (const char* fixed = labels::fixedPosition(key.baseCode)) return fixed;
    if (key.keycode == 0) return nameOfPosition(key.baseCode);
    if (key.choosers != 0) {
        std::string chosen = labelAt(keymap, layout, key, key.choosers);
        if (!chosen.empty()) return chosen;
    }
    std::string label = labelAt(keymap, layout, key, 0);
    return label.empty() ? nameOfPosition(key.baseCode) : label;
}

std::string keyText(const Keymap& keymap, xkb_layout_index_t layout, std::uint32_t keyCode,
                    xkb_mod_mask_t modifiers) {
    const Key key = keyOf(keymap, keyCode);
    if (key.keycode == 0) return {};
    const xkb_mod_mask_t digits = keycode::isKeypadDigit(key.baseCode) ? keymap.masks().numLock : 0;
    return printed(keymap.symbol(key.keycode, modifiers | key.choosers | digits, layout));
}

std::string typedText(const Keymap& keymap, xkb_layout_index_t inForce, std::uint32_t keyCode, bool shift) {
    const Key key = keyOf(keymap, keyCode);
    if (key.keycode == 0) return {};
    const ModifierMasks& masks = keymap.masks();
    const xkb_mod_mask_t modifiers = key.choosers | (shift ? masks.shift : 0) |
                                     ((keyCode & keycode::capsLock) != 0 ? masks.capsLock : 0) |
                                     (keycode::isKeypadDigit(key.baseCode) ? masks.numLock : 0);
    const xkb_layout_index_t layout = keycode::layoutOf(keyCode).value_or(inForce);
    const xkb_keysym_t symbol = keymap.symbol(key.keycode, modifiers, layout);
    const std::uint32_t character = xkb_keysym_to_utf32(symbol);
    return character == ' ' || isPrintable(character) ? utf8(symbol) : std::string();
}

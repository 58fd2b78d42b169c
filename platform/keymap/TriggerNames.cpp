// SPDX-License-Identifier: MIT
#include "platform/keymap/TriggerNames.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <set>
#include <string_view>
#include <vector>

#include "platform/XkbCodes.h"

namespace {

/// A modifier as triggers call it, and as desktops do, in lower case.
struct ModifierName {
    xkb_mod_mask_t ModifierMasks::*mask = nullptr;
    const char* trigger = nullptr;
    const char* gtk = nullptr;
    std::array<std::string_view, 5> others;
};

constexpr std::array modifierNames = {
    ModifierName{&ModifierMasks::control, "CTRL", "<Control>", {"ctrl", "control", "primary"}},
    ModifierName{&ModifierMasks::option, "ALT", "<Alt>", {"alt", "mod1"}},
    ModifierName{&ModifierMasks::shift, "SHIFT", "<Shift>", {"shift"}},
    ModifierName{&ModifierMasks::command, "LOGO", "<Super>", {"super", "meta", "logo", "mod4", "win"}},
};

std::string lowered(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return text;
}

/// Modifiers, and the key as the last.
using Parts = std::vector<std::string>;

bool isPartOfName(char letter) {
    return std::isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '_';
}

/// "Press <Control><Super>r" in any language, since the desktop translates the rest alone.
std::optional<Parts> partsOfGtk(const std::string& words) {
    Parts parts;
    std::size_t at = words.find('<');
    while (at < words.size() && words[at] == '<') {
        const std::size_t end = words.find('>', at);
        if (end == std::string::npos) return std::nullopt;
        parts.push_back(words.substr(at + 1, end - at - 1));
        at = end + 1;
    }
    const std::size_t key = at;
    while (at < words.size() && isPartOfName(words[at])) ++at;
    parts.push_back(words.substr(key, at - key));
    const bool isTheOnlyOne = words.find('<', at) == std::string::npos;
    return isTheOnlyOne ? std::optional(parts) : std::nullopt;
}

/// "Meta+Ctrl+R" alone, or after a word; without a modifier a function key alone is told from other words.
std::optional<Parts> partsOfQt(const std::string& words) {
    const std::size_t space = words.find_last_of(" \t");
    const std::string last = space == std::string::npos ? words : words.substr(space + 1);
    Parts parts;
    std::size_t from = 0;
    for (std::size_t at = last.find('+'); at != std::string::npos; at = last.find('+', from)) {
        parts.push_back(last.substr(from, at - from));
        from = at + 1;
    }
    parts.push_back(last.substr(from));
    const bool isFunctionKey = last.size() > 1 && last.front() == 'F' &&
                               std::all_of(last.begin() + 1, last.end(),
                                           [](unsigned char letter) { return std::isdigit(letter) != 0; });
    if (parts.size() == 1 && !isFunctionKey) return std::nullopt;
    return parts;
}

/// Of a name in lower case; null if it is none.
const ModifierName* rowOf(const std::string& name) {
    const auto* const found = std::find_if(modifierNames.begin(), modifierNames.end(), [&](const auto& row) {
        return std::find(row.others.begin(), row.others.end(), name) != row.others.end();
    });
    return found == modifierNames.end() ? nullptr : found;
}

xkb_mod_mask_t maskOf(const ModifierMasks& masks, const std::string& name) {
    const ModifierName* const row = rowOf(lowered(name));
    return row == nullptr ? 0 : masks.*(row->mask);
}

std::uint8_t keycodeOf(const Keymap& keymap, const std::string& name) {
    const xkb_keysym_t symbol = xkb_keysym_from_name(name.c_str(), XKB_KEYSYM_CASE_INSENSITIVE);
    if (symbol == XKB_KEY_NoSymbol) return 0;
    const xkb_keysym_t wanted = xkb_keysym_to_lower(symbol);
    for (std::size_t keycode = xkbcode::first; keycode <= xkbcode::last; ++keycode) {
        const auto found = static_cast<std::uint8_t>(keycode);
        if (keymap.symbol(found, 0, 0) == wanted) return found;
    }
    return 0;
}

std::string symbolNameIn(const Keymap& keymap, xkb_layout_index_t layout, std::uint8_t keycode) {
    constexpr std::size_t longest = 64;
    const xkb_keysym_t symbol = keymap.symbol(keycode, 0, layout);
    std::array<char, longest> name{};
    if (symbol != XKB_KEY_NoSymbol) xkb_keysym_get_name(symbol, name.data(), name.size());
    return name.data();
}

/// Empty without a key, and where a modifier has no name.
template <typename Named>
std::string combinationText(const Keymap& keymap, xkb_mod_mask_t modifiers, const std::string& key,
                            const Named& named) {
    std::string text;
    xkb_mod_mask_t left = modifiers;
    for (const ModifierName& row : modifierNames) {
        const xkb_mod_mask_t mask = keymap.masks().*(row.mask);
        if ((left & mask) == 0) continue;
        text += named(row);
        left &= ~mask;
    }
    return key.empty() || left != 0 ? std::string() : text + key;
}

/// Its modifiers, each by its first name and in the order of those, then its key; empty without a key.
std::optional<Parts> plainParts(const std::string& accelerator) {
    const auto parts = accelerator.starts_with('<') ? partsOfGtk(accelerator) : Parts{accelerator};
    if (!parts || parts->back().empty()) return std::nullopt;
    std::set<std::string> modifiers;
    for (std::size_t i = 0; i + 1 < parts->size(); ++i) {
        const std::string name = lowered((*parts)[i]);
        const auto* const row = rowOf(name);
        modifiers.emplace(row == nullptr ? name : row->others.front());
    }
    Parts plain(modifiers.begin(), modifiers.end());
    // Some keys have several names.
    const std::string key = lowered(parts->back());
    const xkb_keysym_t symbol = xkb_keysym_from_name(key.c_str(), XKB_KEYSYM_CASE_INSENSITIVE);
    plain.push_back(symbol == XKB_KEY_NoSymbol ? key : std::to_string(symbol));
    return plain;
}

}  // namespace

std::string symbolName(const Keymap& keymap, std::uint8_t keycode) {
    return symbolNameIn(keymap, 0, keycode);
}

std::string portalTrigger(const Keymap& keymap, std::uint8_t keycode, xkb_mod_mask_t modifiers) {
    const auto named = [](const ModifierName& row) { return std::string(row.trigger) + "+"; };
    return combinationText(keymap, modifiers, symbolName(keymap, keycode), named);
}

std::string gtkAccelerator(const Keymap& keymap, xkb_layout_index_t layout, std::uint8_t keycode,
                           xkb_mod_mask_t modifiers) {
    const auto named = [](const ModifierName& row) { return std::string(row.gtk); };
    return combinationText(keymap, modifiers, symbolNameIn(keymap, layout, keycode), named);
}

bool isSameAccelerator(const std::string& one, const std::string& other) {
    const auto parts = plainParts(one);
    return parts && parts == plainParts(other);
}

std::optional<KeyCombination> meaningOfTrigger(const Keymap& keymap, const std::string& words) {
    const auto parts = words.find('<') == std::string::npos ? partsOfQt(words) : partsOfGtk(words);
    if (!parts) return std::nullopt;
    KeyCombination combination{.keycode = keycodeOf(keymap, parts->back())};
    for (std::size_t i = 0; i + 1 < parts->size(); ++i) {
        const xkb_mod_mask_t mask = maskOf(keymap.masks(), (*parts)[i]);
        if (mask == 0) return std::nullopt;
        combination.modifiers |= mask;
    }
    return combination.keycode == 0 ? std::nullopt : std::optional(combination);
}

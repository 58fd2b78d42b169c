// SPDX-License-Identifier: MIT
#include "platform/wayland/TypingKeymap.h"

#include <algorithm>
#include <array>
#include <utility>

namespace wayland {

namespace {

constexpr std::string_view section = "xkb_symbols \"";
constexpr std::string_view ourSection = "xkb_symbols \"keyrill-spare-keys\"";

std::string symbolName(char32_t character) {
    std::array<char, 64> name{};
    xkb_keysym_get_name(xkb_utf32_to_keysym(character), name.data(), name.size());
    return name.data();
}

}  // namespace

TypingKeymap::TypingKeymap(std::string text, const Keymap& keymap) : m_text(std::move(text)) {
    const auto last = std::min<xkb_keycode_t>(xkbcode::last, xkb_keymap_max_keycode(keymap.get()));
    for (xkb_keycode_t keycode = xkbcode::first + 1; keycode <= last; ++keycode) {
        const char* const name = xkb_keymap_key_get_name(keymap.get(), keycode);
        if (name == nullptr || xkb_keymap_num_layouts_for_key(keymap.get(), keycode) != 0) continue;
        m_spareKeys.push_back({static_cast<std::uint8_t>(keycode), name});
    }
    const std::size_t start = m_text.find(section);
    const std::size_t end = start == std::string::npos ? start : m_text.find('"', start + section.size());
    if (end == std::string::npos) {
        m_spareKeys.clear();
    } else {
        m_text.replace(start, end + 1 - start, ourSection);
    }
}

std::vector<std::uint8_t> TypingKeymap::spareKeys() const {
    std::vector<std::uint8_t> keycodes;
    keycodes.reserve(m_spareKeys.size());
    for (const SpareKey& key : m_spareKeys) keycodes.push_back(key.keycode);
    return keycodes;
}

std::string TypingKeymap::with(const std::vector<SpareBinding>& bindings) const {
    std::string keys;
    for (const SpareKey& key : m_spareKeys) {
        std::array<std::string, groups> symbols;
        symbols.fill("NoSymbol");
        bool isUsed = false;
        for (const SpareBinding& binding : bindings) {
            if (binding.slot.keycode != key.keycode) continue;
            symbols.at(binding.slot.level) = symbolName(binding.character);
            isUsed = true;
        }
        if (!isUsed) continue;
        keys += "\tkey <" + key.name + "> {";
        for (std::size_t group = 0; group < symbols.size(); ++group) {
            keys += std::string(group == 0 ? "" : ",") + " symbols[Group" + std::to_string(group + 1) +
                    "]= [ " + symbols.at(group) + " ]";
        }
        keys += " };\n";
    }
    std::string text = m_text;
    const std::size_t place = text.find(ourSection);
    const std::size_t brace = place == std::string::npos ? place : text.find('{', place);
    if (brace != std::string::npos) text.insert(text.find('\n', brace) + 1, keys);
    return text;
}

bool TypingKeymap::isOurs(std::string_view text) { return text.find(ourSection) != std::string_view::npos; }

}  // namespace wayland

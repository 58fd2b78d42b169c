// SPDX-License-Identifier: MIT
#include "platform/keymap/CharacterTable.h"

#include <algorithm>
#include <array>
#include <bit>
#include <span>
#include <tuple>

#include "platform/KeyCodes.h"
#include "platform/XkbCodes.h"
#include "platform/keymap/XkbPointers.h"

namespace {

/// Groups that X can lock.
constexpr xkb_layout_index_t maxLayouts = 4;
constexpr std::size_t maxMasks = 16;

/// Fills the characters of one layout.
class LayoutReader {
  public:
    explicit LayoutReader(const Keymap& keymap)
        : m_keymap(keymap.get()), m_masks(keymap.masks()), m_keys(keymap.keys()) {}

    /// What the key types while `layout` of its own is in force, as strokes of the group `group`.
    void read(xkb_keycode_t keycode, xkb_layout_index_t layout, std::int8_t group,
              std::unordered_map<char32_t, Stroke>& characters) const {
        const auto levels = xkb_keymap_num_levels_for_key(m_keymap, keycode, layout);
        for (xkb_level_index_t level = 0; level < levels; ++level) {
            const char32_t character = characterOf(keycode, layout, level);
            const auto modifiers = character == 0 ? std::nullopt : modifiersFor(keycode, layout, level);
            if (!modifiers) continue;
            const Stroke stroke{
                .keycode = static_cast<std::uint8_t>(keycode), .modifiers = *modifiers, .group = group};
            const auto [place, isNew] = characters.try_emplace(character, stroke);
            if (!isNew && rank(stroke) < rank(place->second)) place->second = stroke;
        }
    }

    bool dependsOnNumLock(xkb_keycode_t keycode, xkb_layout_index_t layout) const {
        const auto levels = xkb_keymap_num_levels_for_key(m_keymap, keycode, layout);
        for (xkb_level_index_t level = 0; level < levels; ++level) {
            std::array<xkb_mod_mask_t, maxMasks> masks{};
            const auto count = xkb_keymap_key_get_mods_for_level(m_keymap, keycode, layout, level,
                                                                 masks.data(), masks.size());
            for (const auto mask : std::span(masks).first(count)) {
                if ((mask & m_masks.numLock) != 0) return true;
            }
        }
        return false;
    }

  private:
    char32_t characterOf(xkb_keycode_t keycode, xkb_layout_index_t layout, xkb_level_index_t level) const {
        const xkb_keysym_t* symbols = nullptr;
        if (xkb_keymap_key_get_syms_by_level(m_keymap, keycode, layout, level, &symbols) != 1) return 0;
        return xkb_keysym_to_utf32(*symbols);
    }

    /// The fewest modifiers that select the level.
    std::optional<xkb_mod_mask_t> modifiersFor(xkb_keycode_t keycode, xkb_layout_index_t layout,
                                               xkb_level_index_t level) const {
        std::array<xkb_mod_mask_t, maxMasks> masks{};
        const auto count =
            xkb_keymap_key_get_mods_for_level(m_keymap, keycode, layout, level, masks.data(), masks.size());
        const xkb_mod_mask_t usable = m_masks.shift | m_masks.thirdLevel | m_masks.fifthLevel;
        std::optional<xkb_mod_mask_t> best;
        for (const auto mask : std::span(masks).first(count)) {
            if ((mask & ~usable) != 0 || (mask != 0 && !m_keys.canHold(mask))) continue;
            if (!best || std::popcount(mask) < std::popcount(*best)) best = mask;
        }
        return best;
    }

    static std::tuple<bool, int, std::uint8_t> rank(const Stroke& stroke) {
        return {keycode::fromEvdev(xkbcode::toEvdev(stroke.keycode)) >= keycode::evdevBase,
                std::popcount(stroke.modifiers), stroke.keycode};
    }

    xkb_keymap* m_keymap;
    const ModifierMasks& m_masks;
    const ModifierKeys& m_keys;
};

}  // namespace

CharacterTable::CharacterTable(const Keymap& keymap, const KeycodeSet& excluded) {
    const LayoutReader reader(keymap);
    xkb_keymap* const map = keymap.get();
    const auto layouts = std::min(maxLayouts, xkb_keymap_num_layouts(map));
    const auto last = std::min<xkb_keycode_t>(xkbcode::last, xkb_keymap_max_keycode(map));
    const XkbStatePointer state(xkb_state_new(map));
    for (xkb_layout_index_t group = 0; group < layouts; ++group) {
        Layout& characters = m_layouts.emplace_back();
        xkb_state_update_mask(state.get(), 0, 0, 0, 0, 0, group);
        for (auto keycode = std::max<xkb_keycode_t>(xkbcode::first + 1, xkb_keymap_min_keycode(map));
             keycode <= last; ++keycode) {
            // A key with fewer groups than the keymap has its own rule for the others.
            const auto layout = xkb_state_key_get_layout(state.get(), keycode);
            if (layout == XKB_LAYOUT_INVALID || excluded.test(keycode)) continue;
            if (reader.dependsOnNumLock(keycode, layout)) continue;
            reader.read(keycode, layout, static_cast<std::int8_t>(group), characters);
        }
    }
}

std::optional<Stroke> CharacterTable::find(char32_t character, xkb_layout_index_t group) const {
    const char32_t typed = character == U'\n' ? U'\r' : character;
    const auto inLayout = [&](std::size_t index) -> std::optional<Stroke> {
        if (index >= m_layouts.size()) return std::nullopt;
        const auto place = m_layouts[index].find(typed);
        return place == m_layouts[index].end() ? std::nullopt : std::optional(place->second);
    };
    if (auto stroke = inLayout(group)) return stroke;
    for (std::size_t index = 0; index < m_layouts.size(); ++index) {
        if (auto stroke = inLayout(index)) return stroke;
    }
    return std::nullopt;
}

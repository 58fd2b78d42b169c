// SPDX-License-Identifier: MIT
#include "platform/keymap/QtKeys.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::uint32_t qtShift = 0x02000000;
constexpr std::uint32_t qtControl = 0x04000000;
constexpr std::uint32_t qtAlt = 0x08000000;
constexpr std::uint32_t qtMeta = 0x10000000;
constexpr std::uint32_t qtF1 = 0x01000030;

struct Row {
    xkb_keysym_t symbol;
    std::uint32_t key;
};

/// Keys that type no character, or one that Qt has another number for (Qt::Key).
constexpr std::array rows = {
    Row{XKB_KEY_Escape, 0x01000000},
    Row{XKB_KEY_Tab, 0x01000001},
    Row{XKB_KEY_ISO_Left_Tab, 0x01000001},
    Row{XKB_KEY_BackSpace, 0x01000003},
    Row{XKB_KEY_Return, 0x01000004},
    Row{XKB_KEY_KP_Enter, 0x01000005},
    Row{XKB_KEY_Insert, 0x01000006},
    Row{XKB_KEY_KP_Insert, 0x01000006},
    Row{XKB_KEY_Delete, 0x01000007},
    Row{XKB_KEY_KP_Delete, 0x01000007},
    Row{XKB_KEY_Pause, 0x01000008},
    Row{XKB_KEY_Print, 0x01000009},
    Row{XKB_KEY_Sys_Req, 0x0100000a},
    Row{XKB_KEY_KP_Begin, 0x0100000b},
    Row{XKB_KEY_Home, 0x01000010},
    Row{XKB_KEY_KP_Home, 0x01000010},
    Row{XKB_KEY_End, 0x01000011},
    Row{XKB_KEY_KP_End, 0x01000011},
    Row{XKB_KEY_Left, 0x01000012},
    Row{XKB_KEY_KP_Left, 0x01000012},
    Row{XKB_KEY_Up, 0x01000013},
    Row{XKB_KEY_KP_Up, 0x01000013},
    Row{XKB_KEY_Right, 0x01000014},
    Row{XKB_KEY_KP_Right, 0x01000014},
    Row{XKB_KEY_Down, 0x01000015},
    Row{XKB_KEY_KP_Down, 0x01000015},
    Row{XKB_KEY_Prior, 0x01000016},
    Row{XKB_KEY_KP_Prior, 0x01000016},
    Row{XKB_KEY_Next, 0x01000017},
    Row{XKB_KEY_KP_Next, 0x01000017},
    Row{XKB_KEY_Scroll_Lock, 0x01000026},
    Row{XKB_KEY_Menu, 0x01000055},
    Row{XKB_KEY_Help, 0x01000058},
    Row{XKB_KEY_XF86AudioLowerVolume, 0x01000070},
    Row{XKB_KEY_XF86AudioMute, 0x01000071},
    Row{XKB_KEY_XF86AudioRaiseVolume, 0x01000072},
    Row{XKB_KEY_XF86AudioPlay, 0x01000080},
    Row{XKB_KEY_XF86AudioStop, 0x01000081},
    Row{XKB_KEY_XF86AudioPrev, 0x01000082},
    Row{XKB_KEY_XF86AudioNext, 0x01000083},
};

/// 0 where there is none.
std::uint32_t qtKey(xkb_keysym_t symbol) {
    const auto* const row =
        std::find_if(rows.begin(), rows.end(), [symbol](const Row& one) { return one.symbol == symbol; });
    if (row != rows.end()) return row->key;
    if (symbol >= XKB_KEY_F1 && symbol <= XKB_KEY_F35) return qtF1 + (symbol - XKB_KEY_F1);
    // A letter by its capital; what types no character has no other number.
    const std::uint32_t character = xkb_keysym_to_utf32(xkb_keysym_to_upper(symbol));
    return character >= ' ' && character <= 0xFFFF ? character : 0;
}

bool isLetter(xkb_keysym_t symbol) { return xkb_keysym_to_upper(symbol) != xkb_keysym_to_lower(symbol); }

/// Qt's modifiers of a combination, without Shift.
std::uint32_t commandsOf(const ModifierMasks& masks, xkb_mod_mask_t modifiers) {
    return ((modifiers & masks.control) != 0 ? qtControl : 0) |
           ((modifiers & masks.option) != 0 ? qtAlt : 0) | ((modifiers & masks.command) != 0 ? qtMeta : 0);
}

}  // namespace

std::vector<std::int32_t> qtCombinations(const Keymap& keymap, std::uint8_t keycode,
                                         xkb_mod_mask_t modifiers) {
    const ModifierMasks& masks = keymap.masks();
    const xkb_mod_mask_t choosers = modifiers & (masks.thirdLevel | masks.fifthLevel);
    const bool isShifted = (modifiers & masks.shift) != 0;
    std::vector<std::int32_t> combinations;
    for (xkb_layout_index_t layout = 0; layout < xkb_keymap_num_layouts(keymap.get()); ++layout) {
        const xkb_keysym_t plain = keymap.symbol(keycode, choosers, layout);
        const xkb_keysym_t symbol =
            isShifted ? keymap.symbol(keycode, choosers | masks.shift, layout) : plain;
        const std::uint32_t key = qtKey(symbol);
        if (key == 0) continue;
        const bool isChosenByShift = symbol != plain && !isLetter(symbol) && key < qtF1 - 0x30;
        const std::uint32_t shift = isShifted && !isChosenByShift ? qtShift : 0;
        const auto whole = static_cast<std::int32_t>(key | shift | commandsOf(masks, modifiers));
        if (std::find(combinations.begin(), combinations.end(), whole) == combinations.end()) {
            combinations.push_back(whole);
        }
    }
    return combinations;
}

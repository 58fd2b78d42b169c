// SPDX-License-Identifier: MIT
#include "platform/keymap/LabelTables.h"

#include <algorithm>
#include <iterator>

namespace {

struct SymbolLabel {
    xkb_keysym_t symbol;
    const char* label;
};
struct CodeLabel {
    std::uint32_t keyCode;
    const char* label;
};

constexpr SymbolLabel deadKeys[] = {{XKB_KEY_dead_grave, "`"},         {XKB_KEY_dead_acute, "´"},
                                    {XKB_KEY_dead_circumflex, "^"},    {XKB_KEY_dead_tilde, "~"},
                                    {XKB_KEY_dead_macron, "¯"},        {XKB_KEY_dead_breve, "˘"},
                                    {XKB_KEY_dead_abovedot, "˙"},      {XKB_KEY_dead_diaeresis, "¨"},
                                    {XKB_KEY_dead_abovering, "°"},     {XKB_KEY_dead_doubleacute, "˝"},
                                    {XKB_KEY_dead_caron, "ˇ"},         {XKB_KEY_dead_cedilla, "¸"},
                                    {XKB_KEY_dead_ogonek, "˛"},        {XKB_KEY_dead_iota, "ͺ"},
                                    {XKB_KEY_dead_voiced_sound, "゛"}, {XKB_KEY_dead_semivoiced_sound, "゜"},
                                    {XKB_KEY_dead_stroke, "/"},        {XKB_KEY_dead_currency, "¤"},
                                    {XKB_KEY_dead_greek, "µ"}};

constexpr SymbolLabel symbols[] = {{XKB_KEY_Return, "↩"},
                                   {XKB_KEY_Tab, "⇥"},
                                   {XKB_KEY_ISO_Left_Tab, "⇤"},
                                   {XKB_KEY_BackSpace, "⌫"},
                                   {XKB_KEY_Delete, "⌦"},
                                   {XKB_KEY_Escape, "⎋"},
                                   {XKB_KEY_Left, "←"},
                                   {XKB_KEY_Right, "→"},
                                   {XKB_KEY_Up, "↑"},
                                   {XKB_KEY_Down, "↓"},
                                   {XKB_KEY_Page_Up, "⇞"},
                                   {XKB_KEY_Page_Down, "⇟"},
                                   {XKB_KEY_Home, "↖"},
                                   {XKB_KEY_End, "↘"},
                                   {XKB_KEY_space, "Space"},
                                   {XKB_KEY_nobreakspace, "No-Break Space"},
                                   {XKB_KEY_Insert, "Insert"},
                                   {XKB_KEY_Print, "Print"},
                                   {XKB_KEY_Sys_Req, "Print"},
                                   {XKB_KEY_Scroll_Lock, "Scroll Lock"},
                                   {XKB_KEY_Pause, "Pause"},
                                   {XKB_KEY_Break, "Pause"},
                                   {XKB_KEY_Menu, "Menu"},
                                   {XKB_KEY_Num_Lock, "Num Lock"},
                                   {XKB_KEY_Caps_Lock, "Caps Lock"},
                                   {XKB_KEY_Shift_L, "Shift"},
                                   {XKB_KEY_Shift_R, "Right Shift"},
                                   {XKB_KEY_Control_L, "Ctrl"},
                                   {XKB_KEY_Control_R, "Right Ctrl"},
                                   {XKB_KEY_Alt_L, "Alt"},
                                   {XKB_KEY_Alt_R, "Right Alt"},
                                   {XKB_KEY_Super_L, "Super"},
                                   {XKB_KEY_Super_R, "Right Super"},
                                   {XKB_KEY_ISO_Level3_Shift, "AltGr"},
                                   {XKB_KEY_KP_Enter, "Pad Enter"},
                                   {XKB_KEY_KP_Begin, "Pad Begin"},
                                   {XKB_KEY_KP_Tab, "Pad Tab"},
                                   {XKB_KEY_KP_Space, "Pad Space"},
                                   {XKB_KEY_XF86AudioRaiseVolume, "Volume Up"},
                                   {XKB_KEY_XF86AudioLowerVolume, "Volume Down"},
                                   {XKB_KEY_XF86AudioMute, "Mute"},
                                   {XKB_KEY_XF86AudioMicMute, "Mic Mute"},
                                   {XKB_KEY_XF86AudioPlay, "Play"},
                                   {XKB_KEY_XF86AudioPause, "Pause Playback"},
                                   {XKB_KEY_XF86AudioStop, "Stop"},
                                   {XKB_KEY_XF86AudioNext, "Next Track"},
                                   {XKB_KEY_XF86AudioPrev, "Previous Track"},
                                   {XKB_KEY_XF86MonBrightnessUp, "Brightness Up"},
                                   {XKB_KEY_XF86MonBrightnessDown, "Brightness Down"},
                                   {XKB_KEY_XF86PowerOff, "Power"}};

constexpr CodeLabel functionKeys[] = {
    {64, "F17"}, {79, "F18"}, {80, "F19"}, {90, "F20"},     {96, "F5"},      {97, "F6"},     {98, "F7"},
    {99, "F3"},  {100, "F8"}, {101, "F9"}, {103, "F11"},    {106, "F16"},    {109, "F10"},   {111, "F12"},
    {118, "F4"}, {120, "F2"}, {122, "F1"}, {0x10B7, "F13"}, {0x10B8, "F14"}, {0x10B9, "F15"}};

constexpr CodeLabel positions[] = {{10, "§"},
                                   {52, "Pad Enter"},
                                   {63, "Fn"},
                                   {71, "Num Lock"},
                                   {81, "Pad ="},
                                   {93, "¥"},
                                   {94, "_"},
                                   {95, "Pad ,"},
                                   {102, "Eisu"},
                                   {104, "Kana"},
                                   {105, "Print"},
                                   {107, "Scroll Lock"},
                                   {110, "Menu"},
                                   {113, "Pause"},
                                   {114, "Insert"},
                                   {127, "Power"},
                                   {129, "Search"},
                                   {130, "Dashboard"},
                                   {131, "Launchpad"},
                                   {144, "Brightness Up"},
                                   {145, "Brightness Down"},
                                   {160, "All Windows"},
                                   {161, "Show Desktop"}};

template <typename Table>
const char* find(const Table& table, xkb_keysym_t symbol) {
    const auto row = std::find_if(std::begin(table), std::end(table),
                                  [symbol](const auto& entry) { return entry.symbol == symbol; });
    return row == std::end(table) ? nullptr : row->label;
}

template <typename Table>
const char* findCode(const Table& table, std::uint32_t keyCode) {
    const auto row = std::find_if(std::begin(table), std::end(table),
                                  [keyCode](const auto& entry) { return entry.keyCode == keyCode; });
    return row == std::end(table) ? nullptr : row->label;
}

}  // namespace

namespace labels {

const char* deadKey(xkb_keysym_t symbol) { return find(deadKeys, symbol); }
const char* symbol(xkb_keysym_t symbol) { return find(symbols, symbol); }
const char* fixedPosition(std::uint32_t keyCode) { return findCode(functionKeys, keyCode); }
const char* position(std::uint32_t keyCode) { return findCode(positions, keyCode); }

}  // namespace labels

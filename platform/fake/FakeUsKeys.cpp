// SPDX-License-Identifier: MIT
#include "platform/fake/FakeUsKeys.h"

#include <algorithm>
#include <array>

#include "platform/Modifiers.h"

namespace fakeus {
namespace {

struct Key {
    std::uint32_t code;
    const char* name;
    char plain;
    char shifted;
};

constexpr std::array keys = {
    Key{0, "A", 'a', 'A'},         Key{1, "S", 's', 'S'},        Key{2, "D", 'd', 'D'},
    Key{3, "F", 'f', 'F'},         Key{4, "H", 'h', 'H'},        Key{5, "G", 'g', 'G'},
    Key{6, "Z", 'z', 'Z'},         Key{7, "X", 'x', 'X'},        Key{8, "C", 'c', 'C'},
    Key{9, "V", 'v', 'V'},         Key{10, "\\", '\\', '|'},     Key{11, "B", 'b', 'B'},
    Key{12, "Q", 'q', 'Q'},        Key{13, "W", 'w', 'W'},       Key{14, "E", 'e', 'E'},
    Key{15, "R", 'r', 'R'},        Key{16, "Y", 'y', 'Y'},       Key{17, "T", 't', 'T'},
    Key{18, "1", '1', '!'},        Key{19, "2", '2', '@'},       Key{20, "3", '3', '#'},
    Key{21, "4", '4', '$'},        Key{22, "6", '6', '^'},       Key{23, "5", '5', '%'},
    Key{24, "=", '=', '+'},        Key{25, "9", '9', '('},       Key{26, "7", '7', '&'},
    Key{27, "-", '-', '_'},        Key{28, "8", '8', '*'},       Key{29, "0", '0', ')'},
    Key{30, "]", ']', '}'},        Key{31, "O", 'o', 'O'},       Key{32, "U", 'u', 'U'},
    Key{33, "[", '[', '{'},        Key{34, "I", 'i', 'I'},       Key{35, "P", 'p', 'P'},
    Key{36, "↩", '\r', '\r'},      Key{37, "L", 'l', 'L'},       Key{38, "J", 'j', 'J'},
    Key{39, "'", '\'', '"'},       Key{40, "K", 'k', 'K'},       Key{41, ";", ';', ':'},
    Key{42, "\\", '\\', '|'},      Key{43, ",", ',', '<'},       Key{44, "/", '/', '?'},
    Key{45, "N", 'n', 'N'},        Key{46, "M", 'm', 'M'},       Key{47, ".", '.', '>'},
    Key{48, "⇥", '\t', 0},         Key{49, "Space", ' ', ' '},   Key{50, "`", '`', '~'},
    Key{51, "⌫", '\b', '\b'},      Key{53, "⎋", 0x1b, 0x1b},     Key{65, "Pad .", '.', '.'},
    Key{67, "Pad *", '*', '*'},    Key{69, "Pad +", '+', '+'},   Key{71, "Num Lock", 0, 0},
    Key{75, "Pad /", '/', '/'},    Key{76, "Pad ↩", '\r', '\r'}, Key{78, "Pad -", '-', '-'},
    Key{82, "Pad 0", '0', '0'},    Key{83, "Pad 1", '1', '1'},   Key{84, "Pad 2", '2', '2'},
    Key{85, "Pad 3", '3', '3'},    Key{86, "Pad 4", '4', '4'},   Key{87, "Pad 5", '5', '5'},
    Key{88, "Pad 6", '6', '6'},    Key{89, "Pad 7", '7', '7'},   Key{91, "Pad 8", '8', '8'},
    Key{92, "Pad 9", '9', '9'},    Key{96, "F5", 0, 0},          Key{97, "F6", 0, 0},
    Key{98, "F7", 0, 0},           Key{99, "F3", 0, 0},          Key{100, "F8", 0, 0},
    Key{101, "F9", 0, 0},          Key{103, "F11", 0, 0},        Key{105, "Print", 0, 0},
    Key{107, "Scroll Lock", 0, 0}, Key{109, "F10", 0, 0},        Key{110, "Menu", 0, 0},
    Key{111, "F12", 0, 0},         Key{113, "Pause", 0, 0},      Key{114, "Insert", 0, 0},
    Key{115, "↖", 0, 0},           Key{116, "⇞", 0, 0},          Key{117, "⌦", 0x7f, 0x7f},
    Key{118, "F4", 0, 0},          Key{119, "↘", 0, 0},          Key{120, "F2", 0, 0},
    Key{121, "⇟", 0, 0},           Key{122, "F1", 0, 0},         Key{123, "←", 0, 0},
    Key{124, "→", 0, 0},           Key{125, "↓", 0, 0},          Key{126, "↑", 0, 0},
};

struct ModifierKey {
    std::uint32_t code;
    std::uint32_t modifier;
    const char* name;
};

constexpr std::array modifierKeys = {
    ModifierKey{54, modifier::command, "Right Super"}, ModifierKey{55, modifier::command, "Super"},
    ModifierKey{56, modifier::shift, "Shift"},         ModifierKey{57, modifier::capsLock, "Caps Lock"},
    ModifierKey{58, modifier::option, "Alt"},          ModifierKey{59, modifier::control, "Ctrl"},
    ModifierKey{60, modifier::shift, "Right Shift"},   ModifierKey{61, modifier::option, "Right Alt"},
    ModifierKey{62, modifier::control, "Right Ctrl"},
};

template <typename Table>
auto find(const Table& table, std::uint32_t code) {
    return std::find_if(table.begin(), table.end(), [code](const auto& key) { return key.code == code; });
}

}  // namespace

std::uint32_t modifierOf(std::uint32_t keyCode) {
    const auto* key = find(modifierKeys, keyCode);
    return key == modifierKeys.end() ? 0 : key->modifier;
}

char character(std::uint32_t keyCode, bool shift) {
    const auto* key = find(keys, keyCode);
    if (key == keys.end()) return 0;
    return shift ? key->shifted : key->plain;
}

bool isLetter(std::uint32_t keyCode) {
    const char plain = character(keyCode, false);
    return plain >= 'a' && plain <= 'z';
}

std::string keyName(std::uint32_t keyCode) {
    if (const auto* key = find(keys, keyCode); key != keys.end()) return key->name;
    if (const auto* key = find(modifierKeys, keyCode); key != modifierKeys.end()) return key->name;
    return "Key " + std::to_string(keyCode);
}

std::string combinationName(std::uint32_t keyCode, std::uint32_t modifiers) {
    std::string name;
    if ((modifiers & modifier::control) != 0) name += "Ctrl+";
    if ((modifiers & modifier::option) != 0) name += "Alt+";
    if ((modifiers & modifier::shift) != 0) name += "Shift+";
    if ((modifiers & modifier::command) != 0) name += "Super+";
    return name + keyName(keyCode);
}

}  // namespace fakeus

// SPDX-License-Identifier: MIT
#include "platform/script/commands/KeyTable.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "platform/KeyCodes.h"

namespace script {
namespace {

struct Title {
    std::uint32_t code;
    std::string_view title;
};

/// Where the key's place and the word on it differ, or the word needs another one beside it.
constexpr auto titles = std::to_array<Title>({{10, "the key beside left Shift"},
                                              {24, "="},
                                              {27, "-"},
                                              {30, "]"},
                                              {33, "["},
                                              {39, "'"},
                                              {41, ";"},
                                              {42, "\\"},
                                              {43, ","},
                                              {44, "/"},
                                              {47, "."},
                                              {50, "`"},
                                              {51, "Backspace"},
                                              {52, "Keypad Enter, as 76"},
                                              {54, "right Super"},
                                              {55, "Super (command)"},
                                              {58, "Alt (option)"},
                                              {59, "Ctrl (control)"},
                                              {60, "right Shift"},
                                              {61, "AltGr, right Alt"},
                                              {62, "right Ctrl"},
                                              {71, "Num Lock"},
                                              {93, "Yen"},
                                              {94, "Japanese underscore"},
                                              {102, "Hanja"},
                                              {104, "Hangul"},
                                              {105, "Print Screen"},
                                              {107, "Scroll Lock"},
                                              {110, "Menu"},
                                              {113, "Pause"},
                                              {114, "Insert"},
                                              {117, "Delete"}});

/// "ANSI_KeypadPlus" is "Keypad Plus".
std::string spelledOut(std::string_view name) {
    const std::size_t mark = name.find('_');
    if (mark != std::string_view::npos) name.remove_prefix(mark + 1);
    std::string title;
    for (const char c : name) {
        const bool isLarge = (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
        const bool begins = isLarge && !title.empty() && title.back() >= 'a' && title.back() <= 'z';
        if (c == '(' || c == ')') continue;
        if (begins) title += ' ';
        title += c;
    }
    return title;
}

std::string titleOf(const keycode::Row& row) {
    const auto* known = std::find_if(titles.begin(), titles.end(),
                                     [&](const Title& title) { return title.code == row.code; });
    return known == titles.end() ? spelledOut(row.name) : std::string(known->title);
}

std::vector<keycode::Row> playedRows() {
    std::vector<keycode::Row> played;
    for (const keycode::Row& row : keycode::rows()) {
        if (keycode::evdevFor(row.code)) played.push_back(row);
    }
    return played;
}

/// A bar would end the cell; a backslash and a grave accent mean something else.
std::string inCell(const std::string& title) {
    const bool isSign = title.size() == 1 && (title < "0" || title > "9") && (title < "A" || title > "Z");
    if (title == "`") return "`` ` ``";
    return isSign ? "`" + title + "`" : title;
}

}  // namespace

std::string keyTitle(std::uint32_t code) {
    if (!keycode::evdevFor(code)) return "";
    const std::uint32_t base = code & ~keycode::choosers;
    const std::string chooser = (code & keycode::thirdLevel) != 0 ? "AltGr with " : "";
    for (const keycode::Row& row : keycode::rows()) {
        if (row.code == base) return chooser + titleOf(row);
    }
    return chooser + "key " + std::to_string(base - keycode::evdevBase);
}

std::string keyLines() {
    std::string lines;
    for (const keycode::Row& row : playedRows())
        lines += std::to_string(row.code) + "\t" + titleOf(row) + "\n";
    return lines;
}

std::string keyTable() {
    constexpr std::size_t columns = 3;
    const std::vector<keycode::Row> played = playedRows();
    const std::size_t height = (played.size() + columns - 1) / columns;
    std::string table = "| code | key | code | key | code | key |\n| --- | --- | --- | --- | --- | --- |\n";
    for (std::size_t line = 0; line < height; ++line) {
        for (std::size_t place = line; place < height * columns; place += height) {
            const bool isKey = place < played.size();
            table += isKey ? "| " + std::to_string(played[place].code) + " | " +
                                 inCell(titleOf(played[place])) + " "
                           : std::string("| | ");
        }
        table += "|\n";
    }
    return table;
}

}  // namespace script

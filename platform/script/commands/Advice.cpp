// SPDX-License-Identifier: MIT
#include "platform/script/commands/Advice.h"

#include <algorithm>
#include <array>

#include "platform/KeyCodes.h"
#include "platform/script/values/ModifierWords.h"
#include "platform/script/values/SourceForm.h"

namespace script {
namespace {

/// What people call keys that type nothing, in lower case.
struct KeyWord {
    std::string_view name;
    int code;
};

constexpr auto keyWords =
    std::to_array<KeyWord>({{"enter", 36},       {"escape", 53},    {"esc", 53},
                            {"backspace", 51},   {"delete", 51},    {"forwarddelete", 117},
                            {"del", 117},        {"up", 126},       {"uparrow", 126},
                            {"arrowup", 126},    {"down", 125},     {"downarrow", 125},
                            {"arrowdown", 125},  {"left", 123},     {"leftarrow", 123},
                            {"arrowleft", 123},  {"right", 124},    {"rightarrow", 124},
                            {"arrowright", 124}, {"home", 115},     {"pageup", 116},
                            {"pgup", 116},       {"pagedown", 121}, {"pgdn", 121},
                            {"insert", 114},     {"f1", 122},       {"f2", 120},
                            {"f3", 99},          {"f4", 118},       {"f5", 96},
                            {"f6", 97},          {"f7", 98},        {"f8", 100},
                            {"f9", 101},         {"f10", 109},      {"f11", 103},
                            {"f12", 111}});

std::optional<int> codeOfWord(std::string_view name) {
    std::string plain;
    for (const char c : asciiLowered(name)) plain += c == '_' ? "" : std::string(1, c);
    const auto* row = std::find_if(keyWords.begin(), keyWords.end(),
                                   [&](const KeyWord& word) { return word.name == plain; });
    return row == keyWords.end() ? std::nullopt : std::optional<int>(row->code);
}

std::string inQuotes(std::string_view name) { return "\"" + std::string(name) + "\""; }

}  // namespace

std::string codeAdvice(std::int64_t code) {
    constexpr std::int64_t largest = 65535;
    if (code < 0 || code > largest) return "A key code lies between 0 and " + std::to_string(largest) + ".";
    const auto key = static_cast<std::uint32_t>(code);
    if (keycode::isExtension(key)) {
        return "Key code " + std::to_string(code) + " is an extension, which only Keyrill plays.";
    }
    if (keycode::baseOf(key) == keycode::power || keycode::evdevFor(key)) return "";
    return noKeyAdvice(key);
}

std::string noKeyAdvice(std::uint32_t code) {
    return "Key code " + std::to_string(code) + " has no key; nothing is pressed.";
}

std::string noCodeAdvice() { return "A key code is a number; a text is typed with “keystroke”."; }

std::string modifierAdvice(const Modifier& modifier) {
    const std::string name = constantText(modifier);
    return "“" + name + "” is taken as “" + name + " down”.";
}

std::string quotedModifierAdvice(std::string_view text) {
    const std::string given = asciiLowered(text.substr(0, text.find(' ')));
    const auto* row = std::find_if(modifierWords.begin(), modifierWords.end(),
                                   [&](const ModifierWord& word) { return spellingOf(word.word) == given; });
    return row == modifierWords.end() ? "" : "A modifier stands without quotes: using " + given + " down.";
}

std::string joinedModifiersAdvice() {
    return "Several modifiers stand in braces: using {control down, shift down}.";
}

std::string joinedTextsAdvice() { return "Texts are joined with “&”: \"one\" & \"two\"."; }

std::string comparisonAdvice(std::string_view name) {
    return "This compares and changes nothing; a variable is set with “to”: set " +
           std::string(name.empty() ? "x" : name) + " to …";
}

std::string neverSet(std::string_view name) {
    return "The variable " + std::string(name) + " is never set. ";
}

std::string meantBy(std::string_view name, NameRole role) {
    if (role == NameRole::application) return "An application is named: application " + inQuotes(name) + ".";
    const bool isTyped = role == NameRole::keyCode || role == NameRole::text;
    const std::optional<int> code = isTyped ? codeOfWord(name) : std::nullopt;
    if (code) return "The key has a number: key code " + std::to_string(*code) + ".";
    return "Text stands between straight quotes: " + inQuotes(name) + ".";
}

std::string undefinedHint(std::string_view name) {
    return "A variable is set before it is used: set " + std::string(name) +
           " to … Text stands between straight quotes: " + inQuotes(name) + ".";
}

}  // namespace script

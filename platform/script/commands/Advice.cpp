// SPDX-License-Identifier: MIT
#include "platform/script/commands/Advice.h"

#include <algorithm>
#include <array>
#include <utility>

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

/// What other languages say, in lower case, and how it is said here.
struct ForeignWord {
    std::string_view word;
    std::string_view advice;
};

constexpr std::string_view asking =
    R"(A question is asked with: text returned of (display dialog "Name?" default answer "").)";
constexpr std::string_view choosing = "A number by chance is: random number from 1 to 10.";
constexpr std::string_view leaving = "A loop is left with “exit repeat”, the script with “return”.";
constexpr std::string_view typing = "Text is typed with “keystroke”: keystroke \"hello\".";
constexpr std::string_view pausing = "A pause is written in seconds: delay 2.";
constexpr std::string_view raising =
    "A window is brought to the front with: tell application \"Firefox\" to activate.";

constexpr auto foreignWords = std::to_array<ForeignWord>({{"input", asking},
                                                          {"ask", asking},
                                                          {"prompt", asking},
                                                          {"random", choosing},
                                                          {"rand", choosing},
                                                          {"randint", choosing},
                                                          {"break", leaving},
                                                          {"stop", leaving},
                                                          {"quit", leaving},
                                                          {"print", typing},
                                                          {"type", typing},
                                                          {"send", typing},
                                                          {"write", typing},
                                                          {"sleep", pausing},
                                                          {"wait", pausing},
                                                          {"launch", raising},
                                                          {"open", raising}});

/// The modifier that is called so elsewhere or here; empty if none is.
std::string_view modifierOf(std::string_view name) {
    constexpr auto names =
        std::to_array<std::pair<std::string_view, std::string_view>>({{"cmd", "command"},
                                                                      {"command", "command"},
                                                                      {"super", "command"},
                                                                      {"win", "command"},
                                                                      {"meta", "command"},
                                                                      {"ctrl", "control"},
                                                                      {"ctl", "control"},
                                                                      {"control", "control"},
                                                                      {"alt", "option"},
                                                                      {"opt", "option"},
                                                                      {"option", "option"},
                                                                      {"shift", "shift"}});
    const std::string lowered = asciiLowered(name);
    const auto* row =
        std::find_if(names.begin(), names.end(), [&](const auto& one) { return one.first == lowered; });
    return row == names.end() ? "" : row->second;
}

std::string inQuotes(std::string_view name) { return "\"" + std::string(name) + "\""; }

}  // namespace

std::string codeAdvice(std::int64_t code) {
    constexpr std::int64_t largest = 65535;
    if (code < 0 || code > largest) {
        return "A key code lies between 0 and " + std::to_string(largest) +
               "; “keyrill-script keys” prints those that keys have.";
    }
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

std::string typedNameAdvice(std::string_view text) {
    const std::string typed = "This is typed as it stands; ";
    if (text.size() > 2 && text.front() == '{' && text.back() == '}') {
        const std::optional<int> code = codeOfWord(text.substr(1, text.size() - 2));
        return code ? typed + "the key has a number: key code " + std::to_string(*code) + "." : "";
    }
    const std::size_t sign = text.find_first_of("+-");
    if (sign == std::string_view::npos || sign + 2 != text.size()) return "";
    const std::string_view modifier = modifierOf(text.substr(0, sign));
    if (modifier.empty()) return "";
    return typed + "a shortcut is written: keystroke " + inQuotes(text.substr(sign + 1)) + " using " +
           std::string(modifier) + " down.";
}

std::string heldModifierAdvice() { return "A modifier is held with: key down shift, without quotes."; }

std::string noHandlerAdvice(std::string_view name) {
    std::string foreign = foreignWordAdvice(name);
    if (!foreign.empty()) return foreign;
    return "The script has no handler of that name: on " + std::string(name) + "(…) … end " +
           std::string(name) + ".";
}

std::string foreignWordAdvice(std::string_view name) {
    if (const std::string_view modifier = modifierOf(name); !modifier.empty()) {
        return "The modifiers are called command (Super), control (Ctrl), option (Alt) and shift: using " +
               std::string(modifier) + " down.";
    }
    const auto* row = std::find_if(foreignWords.begin(), foreignWords.end(),
                                   [&](const ForeignWord& one) { return one.word == asciiLowered(name); });
    return row == foreignWords.end() ? "" : std::string(row->advice);
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

// SPDX-License-Identifier: MIT
#include "platform/script/commands/Advice.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/KeyCodes.h"
#include "platform/Sentence.h"
#include "platform/script/commands/KeyTable.h"
#include "platform/script/source/Literal.h"
#include "platform/script/source/Wording.h"
#include "platform/script/values/ModifierWords.h"
#include "platform/script/values/SourceForm.h"

namespace script {
namespace {

/// What people call keys that type nothing, in lower case.
struct KeyWord {
    std::string_view name;
    int code;
};

constexpr auto keyWords = std::to_array<KeyWord>(
    {{"enter", 36},       {"return", 36},     {"newline", 36},    {"tab", 48},
     {"space", 49},       {"spacebar", 49},   {"end", 119},       {"escape", 53},
     {"esc", 53},         {"backspace", 51},  {"delete", 51},     {"forwarddelete", 117},
     {"del", 117},        {"up", 126},        {"uparrow", 126},   {"arrowup", 126},
     {"down", 125},       {"downarrow", 125}, {"arrowdown", 125}, {"left", 123},
     {"leftarrow", 123},  {"arrowleft", 123}, {"right", 124},     {"rightarrow", 124},
     {"arrowright", 124}, {"home", 115},      {"pageup", 116},    {"pgup", 116},
     {"pagedown", 121},   {"pgdn", 121},      {"insert", 114},    {"f1", 122},
     {"f2", 120},         {"f3", 99},         {"f4", 118},        {"f5", 96},
     {"f6", 97},          {"f7", 98},         {"f8", 100},        {"f9", 101},
     {"f10", 109},        {"f11", 103},       {"f12", 111}});

/// As it stands between the quotes of a text.
std::string inQuotes(std::string_view text) { return escaped(shortened(text), '"'); }

/// A name as a script spells it.
std::string spelled(std::string_view name) { return shortened(sourceForm(name)); }

std::optional<int> codeOfWord(std::string_view name) {
    std::string plain;
    for (const char c : asciiLowered(name)) plain += c == '_' ? "" : std::string(1, c);
    const auto* row = std::find_if(keyWords.begin(), keyWords.end(),
                                   [&](const KeyWord& word) { return word.name == plain; });
    return row == keyWords.end() ? std::nullopt : std::optional<int>(row->code);
}

/// The key that types a control character or a blank.
std::optional<int> codeOfCharacter(std::string_view text) {
    if (text == "\r" || text == "\n") return 36;
    if (text == "\t") return 48;
    return text == " " ? std::optional<int>(49) : std::nullopt;
}

/// The key of a US keyboard with the letter.
std::optional<int> codeOfLetter(std::string_view name) {
    if (name.size() != 1 || asciiLowered(name) < "a" || asciiLowered(name) > "z") return std::nullopt;
    for (int code = 0; code < static_cast<int>(keycode::power); ++code) {
        if (equalIgnoringCase(keyTitle(static_cast<std::uint32_t>(code)), name)) return code;
    }
    return std::nullopt;
}

Sentence keyAdvice(int code) {
    return sentence("Hints", "The key has a number: key code %1.").arg(std::to_string(code));
}

/// Of a key in the midst of what is typed.
Sentence joinedKeyAdvice(int code) {
    if (code == 36) return sentence("Hints", "Return is joined to a text so: \"hello\" & return.");
    if (code == 48) return sentence("Hints", "Tab is joined to a text so: \"hello\" & tab.");
    return keyAdvice(code);
}

/// What other languages say, in lower case, and how it is said here.
struct ForeignWord {
    std::string_view word;
    const char* advice;
};

constexpr const char* asking = englishOf(
    "Hints", R"(A question is asked with: text returned of (display dialog "Name?" default answer "").)");
constexpr const char* choosing = englishOf("Hints", "A number by chance is: random number from 1 to 10.");
constexpr const char* leaving =
    englishOf("Hints", "A loop is left with “exit repeat”, the script with “return”.");
constexpr const char* typing = englishOf("Hints", "Text is typed with “keystroke”: keystroke \"hello\".");
constexpr const char* pausing = englishOf("Hints", "A pause is written in seconds: delay 2.");
constexpr const char* catching = englishOf("Hints", "Errors are caught with: try … on error … end try.");
constexpr const char* importing = englishOf(
    "Hints", "Nothing is imported; the commands are there from the start: delay 2, keystroke \"hello\".");
constexpr const char* printing = englishOf(
    "Hints", "A value is printed with: log \"x\". Text is typed with “keystroke”: keystroke \"hello\".");
constexpr const char* telling = englishOf("Hints", "A message is shown with: display dialog \"hello\".");
constexpr const char* missing = englishOf("Hints", "What has no value is written: missing value.");
constexpr const char* raising =
    englishOf("Hints", "A window is brought to the front with: tell application \"Firefox\" to activate.");

constexpr auto foreignWords = std::to_array<ForeignWord>(
    {{"input", asking},         {"ask", asking},         {"prompt", asking},     {"random", choosing},
     {"rand", choosing},        {"randint", choosing},   {"break", leaving},     {"stop", leaving},
     {"quit", leaving},         {"print", printing},     {"echo", printing},     {"type", typing},
     {"send", typing},          {"write", typing},       {"sleep", pausing},     {"wait", pausing},
     {"press", pressingAdvice}, {"catch", catching},     {"except", catching},   {"rescue", catching},
     {"finally", catching},     {"import", importing},   {"include", importing}, {"require", importing},
     {"from", importing},       {"launch", raising},     {"open", raising},      {"msgbox", telling},
     {"messagebox", telling},   {"alert", telling},      {"null", missing},      {"nil", missing},
     {"undefined", missing},    {"today", datingAdvice}, {"date", datingAdvice}, {"now", datingAdvice}});

/// Null if it is none.
const ForeignWord* foreignWord(std::string_view name) {
    const std::string lowered = asciiLowered(name);
    const auto* row = std::find_if(foreignWords.begin(), foreignWords.end(),
                                   [&](const ForeignWord& one) { return one.word == lowered; });
    return row == foreignWords.end() ? nullptr : row;
}

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

Sentence wholeKeyAdvice(int code) {
    return sentence("Warnings", "This is typed as it stands; the key has a number: key code %1.")
        .arg(std::to_string(code));
}

/// The code of a key whose name is the whole text: "F5", "<Tab>". The elements of web pages are none.
std::optional<int> codeOfWhole(std::string_view text) {
    const bool isFunctionKey = text.size() > 1 && text[0] == 'F' && text[1] >= '1' && text[1] <= '9';
    if (isFunctionKey) return codeOfWord(text);
    if (!text.starts_with('<') || !text.ends_with('>') || equalIgnoringCase(text, "<del>"))
        return std::nullopt;
    return codeOfWord(text.substr(1, text.size() - 2));
}

/// Of the first braces of a text, which begins with them here, if they name a key.
Sentence keyInBracesAdvice(std::string_view text, bool isFirst) {
    const std::size_t close = text.find('}');
    if (close == std::string_view::npos) return "";
    const std::optional<int> code = codeOfWord(text.substr(1, close - 1));
    if (!code) return "";
    if (!isFirst || close + 1 < text.size()) {
        //: %1 is the name of a key in braces, %2 a sentence that says how the key is written.
        return sentence("Warnings", "“%1” is typed as it stands. %2")
            .arg(text.substr(0, close + 1))
            .arg(joinedKeyAdvice(*code));
    }
    return wholeKeyAdvice(*code);
}

}  // namespace

Sentence codeAdvice(std::int64_t code) {
    constexpr std::int64_t largest = 65535;
    if (code < 0 || code > largest) {
        return sentence(
                   "Hints",
                   "A key code lies between 0 and %1; “keyrill-script keys” prints those that keys have.")
            .arg(std::to_string(largest));
    }
    const auto key = static_cast<std::uint32_t>(code);
    if (keycode::isExtension(key)) {
        return sentence("Warnings", "Key code %1 is an extension, which only Keyrill plays.")
            .arg(std::to_string(code));
    }
    if (keycode::baseOf(key) == keycode::power || keycode::evdevFor(key)) return "";
    return noKeyAdvice(key);
}

Sentence noKeyAdvice(std::uint32_t code) {
    return sentence("Warnings", "Key code %1 has no key; nothing is pressed.").arg(std::to_string(code));
}

Sentence noCodeAdvice() {
    return sentence("Hints", "A key code is a number; a text is typed with “keystroke”.");
}

Sentence noCodeAdvice(std::string_view text) {
    const std::optional<int> typed = codeOfCharacter(text);
    const std::optional<int> code = typed ? typed : codeOfWord(text);
    if (!code) return noCodeAdvice();
    return sentence("Hints", "The key has a number: key code %1; “keyrill-script keys” prints all.")
        .arg(std::to_string(*code));
}

Sentence keyNameAdvice(std::string_view name) {
    const std::optional<int> code = codeOfWord(name);
    return code ? keyAdvice(*code) : "";
}

Sentence datePartAdvice() {
    return sentence("Hints",
                    "The parts of a date are year, month, day, weekday, hours, minutes, seconds and time.");
}

Sentence didYouMean(std::string_view word) { return sentence("Hints", "Did you mean %1?").arg(word); }

Sentence pauseAdvice(std::string_view text) {
    const bool isDecimal = text.find(',') != std::string_view::npos &&
                           text.find_first_not_of("0123456789, ") == std::string_view::npos;
    return isDecimal ? sentence("Hints", "Decimals stand behind a point: delay 0.5.")
                     : sentence("Hints", "“delay” counts seconds: delay 0.5.");
}

Sentence recordAdvice() {
    return sentence("Hints",
                    "A dialog gives a record; what was typed there is taken with: text returned of n.");
}

Sentence heldAdvice(Held held, std::string_view spelling) {
    const std::string name = spelled(spelling);
    switch (held) {
        case Held::dialog:
            return sentence("Warnings",
                            "A dialog gives a record and no text; take: button returned of %1, or text "
                            "returned of %1.")
                .arg(name);
        case Held::alert:
            return sentence("Warnings", "An alert gives a record and no text; take: button returned of %1.")
                .arg(name);
        case Held::chosen:
            return sentence("Warnings", "What was chosen comes in a list; take: item 1 of %1.").arg(name);
        case Held::item:
            return sentence("Warnings",
                            "The loop gives a reference, which equals no text; compare: contents of %1.")
                .arg(name);
        default:
            return "";
    }
}

Sentence modifierAdvice(const Modifier& modifier) {
    //: %1 is the name of a modifier, "shift".
    return sentence("Warnings", "“%1” is taken as “%1 down”.").arg(constantText(modifier));
}

Sentence quotedModifierAdvice(std::string_view text) {
    const std::string given = asciiLowered(text.substr(0, text.find(' ')));
    const auto* row = std::find_if(modifierWords.begin(), modifierWords.end(),
                                   [&](const ModifierWord& word) { return spellingOf(word.word) == given; });
    if (row == modifierWords.end()) return "";
    //: %1 is the name of a modifier, "shift".
    return sentence("Hints", "A modifier stands without quotes: using %1 down.").arg(given);
}

Sentence joinedModifiersAdvice() {
    return sentence("Hints", "Several modifiers stand in braces: using {control down, shift down}.");
}

Sentence joinedTextsAdvice() { return sentence("Hints", "Texts are joined with “&”: \"one\" & \"two\"."); }

Sentence swallowedAdvice(std::string_view command, std::string_view operation) {
    //: %1 is an operator, ">", %2 a command, "count".
    return sentence("Warnings",
                    "“%1” belongs to what “%2” is given; put parentheses round the command: (%2 …) %1 ….")
        .arg(operation)
        .arg(command);
}

Sentence millisecondsAdvice(std::uint32_t count) {
    return sentence("Warnings", "“delay” counts seconds; %1 milliseconds are: delay %2.")
        .arg(std::to_string(count))
        .arg(realText(count / 1000.0));
}

Sentence comparisonAdvice(std::string_view name) {
    return sentence("Hints", "This compares and changes nothing; a variable is set with “to”: set %1 to …")
        .arg(name.empty() ? "x" : spelled(name));
}

Sentence typedNameAdvice(std::string_view text) {
    if (const std::optional<int> code = codeOfWhole(text)) return wholeKeyAdvice(*code);
    const std::size_t open = text.find('{');
    if (open != std::string_view::npos) return keyInBracesAdvice(text.substr(open), open == 0);
    const std::size_t sign = text.find_first_of("+-");
    if (sign == std::string_view::npos || sign + 2 != text.size()) return "";
    const std::string_view modifier = modifierOf(text.substr(0, sign));
    if (modifier.empty()) return "";
    //: %1 is a letter, %2 the name of a modifier, "control".
    return sentence("Warnings",
                    "This is typed as it stands; a shortcut is written: keystroke \"%1\" using %2 down.")
        .arg(inQuotes(text.substr(sign + 1)))
        .arg(modifier);
}

Sentence heldModifierAdvice() {
    return sentence("Warnings", "A modifier is held with: key down shift, without quotes.");
}

Sentence noHandlerAdvice(std::string_view name) {
    Sentence foreign = foreignWordAdvice(name);
    if (!foreign.empty()) return foreign;
    return sentence("Hints", "The script has no handler of that name: on %1(…) … end %1.").arg(spelled(name));
}

Sentence programAdvice(std::string_view command) {
    const ForeignWord* row = foreignWord(command);
    if (row != nullptr && row->advice == std::string_view(raising)) return sentence("Hints", raising);
    return sentence("Hints",
                    "No program takes a command but “activate”; press its keys: tell application \"System "
                    "Events\" to keystroke \"q\" using control down.");
}

Sentence foreignWordAdvice(std::string_view name) {
    if (const std::string_view modifier = modifierOf(name); !modifier.empty())
        return modifierNameAdvice(modifier);
    const ForeignWord* row = foreignWord(name);
    if (row == nullptr) return "";
    return sentence("Hints", row->advice);
}

Sentence modifierNameAdvice(std::string_view modifier) {
    //: %1 is the name of a modifier, "control".
    return sentence("Hints",
                    "The modifiers are called command (Super), control (Ctrl), option (Alt) and shift: using "
                    "%1 down.")
        .arg(modifier);
}

Sentence neverSetAdvice(std::string_view name, std::string_view meant) {
    //: %2 is a sentence that says what may have been meant.
    return sentence("Warnings", "The variable %1 is never set. %2").arg(shortened(name)).arg(meant);
}

Sentence meantBy(std::string_view name, NameRole role) {
    if (role == NameRole::application)
        return sentence("Hints", "An application is named: application \"%1\".").arg(inQuotes(name));
    const bool isJoined = role == NameRole::joinedText;
    const bool isTyped = isJoined || role == NameRole::keyCode || role == NameRole::text;
    std::optional<int> code = isTyped ? codeOfWord(name) : std::nullopt;
    if (role == NameRole::keyCode && !code) code = codeOfLetter(name);
    if (!code) return "";
    return isJoined ? joinedKeyAdvice(*code) : keyAdvice(*code);
}

Sentence quotesAdvice(std::string_view words) {
    return sentence("Hints", "Text stands between straight quotes: \"%1\".").arg(inQuotes(words));
}

Sentence sharingAdvice(std::string_view name) {
    return sentence("Hints", "A handler has variables of its own; to share this one write there: global %1.")
        .arg(spelled(name));
}

Sentence undefinedHint(std::string_view name) {
    return sentence("Hints",
                    "A variable is set before it is used: set %1 to … Text stands between straight quotes: "
                    "\"%2\".")
        .arg(spelled(name))
        .arg(inQuotes(name));
}

}  // namespace script

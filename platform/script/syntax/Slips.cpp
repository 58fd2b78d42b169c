// SPDX-License-Identifier: MIT
#include "platform/script/syntax/Slips.h"

#include <algorithm>
#include <array>
#include <string>

#include "platform/Sentence.h"
#include "platform/script/commands/Advice.h"
#include "platform/script/source/Wording.h"
#include "platform/script/syntax/ErrorLine.h"
#include "platform/script/syntax/Misspelt.h"

namespace script {
namespace {

/// Where a slip may stand.
enum class Where : std::uint8_t { anywhere, outside, inside };

/// A slip by what the error says and by the words of its line: the first one, the one before the place of the
/// error, and the one there. A pattern is empty for any, or words with bars between them, where `"` is any
/// text and `0` any number.
struct Slip {
    std::string_view inMessage;
    std::string_view first;
    std::string_view before;
    std::string_view here;
    const char* hint;
    Where where = Where::anywhere;
};

constexpr const char* tellHint = englishOf(
    "Hints", "The keyboard commands stand inside “tell application \"System Events\"” … “end tell”.");
constexpr const char* modifierTellHint =
    englishOf("Hints", "Modifiers are known inside “tell application \"System Events\"” … “end tell”.");
constexpr const char* processTellHint =
    englishOf("Hints", "Processes are known inside “tell application \"System Events\"” … “end tell”.");
constexpr const char* curlyHint = englishOf("Hints", "Put straight quotes (\") in place of the curly ones.");
constexpr const char* setHint = englishOf("Hints", "A variable is set with “to”: set x to 5.");
constexpr const char* loopHint =
    englishOf("Hints", "A loop is written: repeat with i from 1 to 5 … end repeat.");
constexpr const char* handlerHint = englishOf("Hints", "A handler is written: on greet(x) … end greet.");
constexpr const char* bracesHint =
    englishOf("Hints", "Several stand in braces: {control down, shift down}, {36, 48}.");
constexpr const char* pauseHint = englishOf("Hints", "A pause is written in seconds: delay 2.");
constexpr const char* elseHint = englishOf("Hints", "These are two words: else if … then.");
constexpr const char* joinHint = englishOf("Hints", "Texts are joined with “&”: \"one\" & \"two\".");
constexpr const char* sendHint = englishOf(
    "Hints", "Text is typed with “keystroke”, and Return joined with “&”: keystroke \"hello\" & return.");
constexpr const char* pressHint = englishOf(
    "Hints",
    "A key goes down and up again with: keystroke return, key code 53. It is held with: key down 36, and "
    "let go with: key up 36.");
constexpr const char* mouseHint =
    englishOf("Hints", "A macro has no mouse; press the keys that do the same, as Tab and Return.");
constexpr const char* bothHint = englishOf("Hints", "Conditions are joined with “and” or “or”.");
constexpr const char* processHint = englishOf("Hints",
                                              "Of a process its name is known, and whether it is in front: "
                                              "every process whose name contains \"fire\".");
constexpr const char* windowHint = englishOf(
    "Hints", "Windows, buttons and menus are not to be seen by a macro; press the keys that do the same.");
constexpr const char* askHint = englishOf(
    "Hints", R"(A question is asked with: text returned of (display dialog "Name?" default answer "").)");
constexpr const char* typeHint = englishOf("Hints", "Text is typed with “keystroke”: keystroke \"hello\".");
constexpr const char* usingHint =
    englishOf("Hints", "Modifiers stand behind “using”: keystroke \"s\" using control down.");
constexpr const char* timesHint = englishOf(
    "Hints",
    "What is done several times stands in lines of its own between “repeat 5 times” and “end repeat”.");
constexpr const char* lineHint = englishOf("Hints", "Each statement has a line of its own.");
constexpr const char* fileHint =
    englishOf("Hints", "A macro has no files; a text comes from “the clipboard” or from a dialog.");
constexpr const char* addHint = englishOf("Hints", "A variable is set with “to”: set x to x + 1.");
constexpr const char* parenthesisHint = englishOf("Hints", "A parenthesis is not closed in this line.");
constexpr const char* braceHint = englishOf("Hints", "A brace is not closed in this line.");
constexpr const char* startHint = englishOf("Hints",
                                            "Press the keys that start it, or bring a window to the front: "
                                            "tell application \"Firefox\" to activate.");

constexpr std::string_view keyboardWords = "keystroke|key";
constexpr std::string_view modifierNames = "command|control|option|shift|cmd|ctrl|alt";
constexpr std::string_view unexpected = "Expected end of line";

/// The first row that fits counts.
constexpr auto slips = std::to_array<Slip>({
    {"unknown token “", "", "", "", curlyHint},
    {"unknown token ”", "", "", "", curlyHint},
    {"unknown token ‘", "", "", "", curlyHint},
    {"Raw codes", "", "", "", englishOf("Hints", "Write the command by its name.")},
    {"do shell script” is refused", "", "", "", startHint},
    {unexpected, keyboardWords, "", "", tellHint, Where::outside},
    {"found identifier", "", "command|control|option|shift", "down", modifierTellHint, Where::outside},
    {unexpected, keyboardWords, "down", modifierNames, bracesHint, Where::inside},
    {"Expected “,” or “}”", keyboardWords, "down", modifierNames, bracesHint, Where::inside},
    {"", keyboardWords, "", "with|command|control|option|shift|cmd|ctrl|alt", usingHint, Where::inside},
    {unexpected, "keystroke", modifierNames, "\"", usingHint, Where::inside},
    {unexpected, keyboardWords, "return|tab|space|enter|\"|0", "down|up", pressHint, Where::inside},
    {unexpected, keyboardWords, "\"|0", "twice|thrice|times|x", timesHint, Where::inside},
    {unexpected, "command|control|option|shift|cmd|ctrl|alt|super|win", "", "",
     englishOf("Hints", "A shortcut is written: keystroke \"c\" using control down.")},
    {unexpected, "keystroke", "", "0", timesHint, Where::inside},
    {unexpected, "key", "", "0", bracesHint, Where::inside},
    {unexpected, "repeat", "", "keystroke|key|delay|beep|set", timesHint},
    {unexpected, keyboardWords, "", "keystroke|key|delay|beep|set", lineHint, Where::inside},
    {unexpected, keyboardWords, "", ",", bracesHint, Where::inside},
    {unexpected, keyboardWords, "\"", "\"", joinHint, Where::inside},
    {"Expected “)” but found “,”", "", "", "", bracesHint},
    {"Expected “)” but found end of", "", "", "", parenthesisHint},
    {"Expected “,” or “}” but found end of", "", "", "", braceHint},
    {"found “whose”", "", "", "",
     englishOf("Hints",
               "Only processes are chosen by “whose”; go through a list with: repeat with x in theList … end "
               "repeat.")},
    {unexpected, "", "window|button|menu|bar|field|sheet", "0|\"", windowHint},
    {"Expected expression", "", "answer", "",
     englishOf("Hints", "Behind “default answer” stands a text, be it empty: default answer \"\".")},
    {"found “else”", "if", "", "",
     englishOf("Hints", "An “if” in one line has no “else”; write it in lines, with “end if”.")},
    {unexpected, "elseif|elif", "", "", elseHint},
    {unexpected, "delay|beep", "0", ",", englishOf("Hints", "Decimals stand behind a point: 0.5.")},
    {unexpected, "delay", "0", "ms|s|sec|secs|second|seconds|millisecond|milliseconds|msec",
     englishOf("Hints", "“delay” counts seconds, without a unit: delay 0.5.")},
    {unexpected, "sleep|wait|pause", "", "", pauseHint},
    {unexpected, "xdotool|ydotool", "", "type", typeHint},
    {unexpected, "xdotool|ydotool", "", "", pressingAdvice},
    {unexpected, "send|sendinput", "", ",", sendHint},
    {unexpected, "type|write|send|keypress|sendkeys", "", "\"", typeHint},
    {unexpected, "press|hit|push|tap|keypress|keycode", "", "", pressingAdvice},
    {"Expected “code”, “down” or “up”", "", "key", "release",
     englishOf("Hints", "A key is let go with: key up \"a\".")},
    {"Expected “code”, “down” or “up”", "", "key", "",
     englishOf("Hints", "Text is typed with “keystroke”, a key is pressed by its number: key code 36.")},
    {unexpected, "hold|release", "", "",
     englishOf("Hints", "A key is held with “key down” and let go with “key up”: key down shift.")},
    {unexpected, "open", "", "for", fileHint},
    {unexpected, "", "choose|read|posix", "file|folder", fileHint},
    {unexpected, "", "path", "to", fileHint},
    {unexpected, "open|launch|start", "", "\"|application|app|process", startHint},
    {unexpected, "", "ask|input|prompt", "\"", askHint},
    {unexpected, "clipboard", "", "info", englishOf("Hints", "The text in the clipboard is: the clipboard.")},
    {unexpected, "click|doubleclick|rightclick|mouse|drag", "", "", mouseHint},
    {unexpected, "let|var|const|dim|local", "", "", setHint},
    {unexpected, "function|def|sub|func|proc|handler", "", "", handlerHint},
    {unexpected, "loop|do", "", "", englishOf("Hints", "A loop is written: repeat 5 times … end repeat.")},
    {"found “\"”", "", "process", "\"", processTellHint, Where::outside},
    {unexpected, "tell", "\"", "",
     englishOf("Hints",
               "Behind the name stands “to”, or the line ends there: tell application \"System Events\" to "
               "keystroke \"a\".")},
    {unexpected, "tell", "", "",
     englishOf("Hints", "The name stands between straight quotes: tell application \"System Events\".")},
    {"", "for|foreach", "", "for|foreach", loopHint},
    {unexpected, "foreach", "", "", loopHint},
    {"", "while", "", "while", englishOf("Hints", "A loop is written: repeat while x < 5 … end repeat.")},
    {"Expected “from” or “in”", "repeat", "", "=", loopHint},
    {"Expected “to” but found", "set", "", "=|:|\"|0", setHint},
    {"Expected “to” but found", "set", "", "+|-|*|/", addHint},
    {unexpected, "", "", "=", setHint},
    {"Expected “to” but found", "repeat", "", "", loopHint},
    {"Expected expression", "", "+|-|*|/", "=", addHint},
    {"Expected expression", "", "+", "+", addHint},
    {"Expected expression", "", "", "/", englishOf("Hints", "A comment begins with -- or #.")},
    {"Expected expression", "", "/", "*", englishOf("Hints", "A comment over lines is written (* … *).")},
    {"", "", "&", "&", bothHint},
    {"", "", "==", "", englishOf("Hints", "“Equal” is written with one =.")},
    {"Expected “\"” but found end of script", "", "", "",
     englishOf("Hints", "A text is not closed by a straight quote.")},
    {"Expected “\"” but found unknown token", "", "", "",
     englishOf("Hints", R"(A backslash in a text is written twice: "C:\\Users".)")},
    {"Expected class name", "", "", "",
     englishOf("Hints",
               "Behind “as” stands a class: text, integer, real, number, boolean, list, record, date.")},
    {"Expected “name”, “frontmost”", "", "", "", processHint},
    {unexpected, "", "unix|bundle", "", processHint},
    {"Expected “then”", "", "", "{", englishOf("Hints", "A block has no braces: if x = 1 then … end if.")},
    {"Expected expression but found end of line", "if|else", "{", "",
     englishOf("Hints", "A block has no braces: if x = 1 then … end if.")},
    {unexpected, "", "", "{",
     englishOf("Hints", "A block has no braces; it ends with “end” and its first word: end repeat.")},
    {unexpected, "", "", ":", englishOf("Hints", "A line needs no colon at its end.")},
});

/// Words that other programs and keyboards have for the modifiers.
struct ForeignModifier {
    std::string_view words;
    std::string_view name;
};

constexpr auto foreignModifiers = std::to_array<ForeignModifier>({
    {"cmd|super|win|windows|meta", "command"},
    {"ctrl|ctl|strg", "control"},
    {"alt|opt", "option"},
});

bool fits(std::string_view word, std::string_view pattern) {
    if (pattern.empty()) return true;
    if (word.empty()) return false;
    const char kind = word.front() == '"' ? '"' : (word.front() >= '0' && word.front() <= '9' ? '0' : ' ');
    for (;;) {
        const std::size_t bar = std::min(pattern.find('|'), pattern.size());
        const std::string_view one = pattern.substr(0, bar);
        if (word == one || (one.size() == 1 && one.front() == kind)) return true;
        if (bar == pattern.size()) return false;
        pattern.remove_prefix(bar + 1);
    }
}

std::string modifierHint(const ErrorLine& line) {
    if (line.here() != "down" && line.here() != "}" && line.here() != ",") return "";
    const auto* row =
        std::find_if(foreignModifiers.begin(), foreignModifiers.end(),
                     [&](const ForeignModifier& one) { return fits(line.before(), one.words); });
    if (row == foreignModifiers.end()) return "";
    return modifierNameAdvice(row->name);
}

/// Whether the tables or the advice know the word as one of other languages.
bool isForeign(std::string_view word) {
    const bool isInSlips = std::any_of(slips.begin(), slips.end(), [&](const Slip& slip) {
        return (!slip.first.empty() && fits(word, slip.first)) ||
               (!slip.before.empty() && fits(word, slip.before)) ||
               (!slip.here.empty() && fits(word, slip.here));
    });
    const bool isModifier = std::any_of(foreignModifiers.begin(), foreignModifiers.end(),
                                        [&](const ForeignModifier& one) { return fits(word, one.words); });
    return isInSlips || isModifier || !foreignWordAdvice(word).empty();
}

/// The name that a target of `set` is; 0 for all else.
NameId nameOf(const Node& target) {
    if (target.kind == NodeKind::name || target.kind == NodeKind::predefined) return target.value;
    const bool isBare = target.kind == NodeKind::element && (target.value & elementnode::isBare) != 0;
    return isBare ? target.value >> elementnode::nameShift : 0;
}

/// The name that a statement gives a value; 0 for all else.
NameId nameSetBy(const Node& statement, const Tree& tree) {
    switch (statement.kind) {
        case NodeKind::set:
        case NodeKind::copy:
            return statement.firstChild == noNode ? 0 : nameOf(tree.at(statement.firstChild));
        case NodeKind::repeatIn:
        case NodeKind::repeatRange:
        case NodeKind::property:
            return statement.value;
        case NodeKind::parameter:
            return statement.firstChild == noNode ? 0 : nameOf(tree.at(statement.firstChild));
        default:
            return 0;
    }
}

/// Whether the script has set a variable of that name.
bool sets(const Tree& tree, std::string_view name) {
    return std::any_of(tree.nodes.begin(), tree.nodes.end(), [&](const Node& node) {
        const NameId set = nameSetBy(node, tree);
        return set != 0 && equalIgnoringCase(tree.names.at(set).spelling, name);
    });
}

/// `keystroke hello world`, `display dialog Hello there`
std::string quotesHint(std::string_view words) {
    const bool areWords = !words.empty() && words.find_first_of("\"&({") == std::string_view::npos;
    return areWords ? quotesAdvice(words) : "";
}

/// Of a text that is shown, if words without quotes stand there which the script has not set.
std::string shownTextHint(const ErrorLine& line, const Tree& tree) {
    const std::string first = line.first();
    if (first != "display" && first != "log") return "";
    const std::size_t number = first == "log" ? 1 : 2;
    const std::string shown = line.word(number);
    if (!isUnknown(shown) || sets(tree, shown)) return "";
    return quotesHint(line.wordsFrom(number, {"with", "default", "buttons", "giving", "message", "as",
                                              "cancel", "hidden", "subtitle", "sound"}));
}

/// `keystroke down arrow`, `key code page up`
std::string keyHint(const ScriptError& error, const ErrorLine& line) {
    if (line.first() != "keystroke" && line.first() != "key") return "";
    if (!error.message.english().starts_with("Expected expression"))
        return keyNameAdvice(line.before() + line.here());
    std::string hint = keyNameAdvice(line.here() + line.behind());
    return hint.empty() ? keyNameAdvice(line.here()).text() : hint;
}

bool isAscii(char c) { return (static_cast<unsigned char>(c) & 0x80U) == 0; }

/// A word with letters that names do not have. Of a sign by itself nobody knows what it was to be.
std::string lettersHint(const ErrorLine& line) {
    const std::string_view letters = line.letters();
    const bool isPlain = std::all_of(letters.begin(), letters.end(), isAscii);
    if (isPlain || letters.size() <= line.here().size()) return "";
    const std::string_view before = line.beforeLetters();
    constexpr auto namingWords = std::to_array<std::string_view>(
        {"set ", "on ", "to ", "repeat with ", "global ", "local ", "property ", "my "});
    const bool isName = std::any_of(namingWords.begin(), namingWords.end(), [&](std::string_view word) {
        return before.size() >= word.size() &&
               equalIgnoringCase(before.substr(before.size() - word.size()), word);
    });
    if (isName) {
        return sentence("Hints", "Other letters than A to Z stand in a name between bars: |%1|.")
            .arg(shortened(letters));
    }
    return sentence(
               "Hints",
               "Other letters than A to Z stand in a name between bars: |%1|. Text stands between straight "
               "quotes: \"%1\".")
        .arg(shortened(letters));
}

/// Whether the line begins with an apostrophe, as a comment does elsewhere.
bool isComment(std::string_view line) {
    const std::size_t first = line.find_first_not_of(" \t");
    return first != std::string_view::npos && line[first] == '\'' &&
           line.find('\'', first + 1) == std::string_view::npos;
}

/// Signs of other languages.
std::string signHint(const ScriptError& error, const ErrorLine& place) {
    const std::string_view line = place.text();
    const std::string here = place.here();
    const std::string message = error.message.english();
    const auto says = [&](std::string_view words) { return message.find(words) != std::string::npos; };
    const auto has = [&](std::string_view sign) { return line.find(sign) != std::string_view::npos; };
    if (says("unknown token U+")) return sentence("Hints", "A sign that nobody sees stands here; delete it.");
    if (isComment(line)) return sentence("Hints", "A comment begins with -- or #.");
    // Before any text, which may hold the same.
    const std::string_view code = line.substr(0, line.find('"'));
    if (code.find("::") != std::string_view::npos) {
        //: “Macros...” is an entry of the menu.
        return sentence(
            "Hints",
            "A hot key is no part of a script; it is set in the preferences, or for each macro in "
            "“Macros...”.");
    }
    if (code.find("++") != std::string_view::npos && says("Expected expression"))
        return sentence("Hints", addHint);
    if (!says("unknown token") && !says("but found “=”") && !says("but found “>”")) return "";
    if (std::string hint = lettersHint(place); says("unknown token") && !hint.empty()) return hint;
    if (has("!=") || has("<>")) return sentence("Hints", "“Not equal” is written ≠ or /=.");
    if (has("==")) return sentence("Hints", "“Equal” is written with one =.");
    if (here == "|") return sentence("Hints", bothHint);
    if (here == ";") return sentence("Hints", lineHint);
    if (here == "[" && place.isIndex())
        return sentence("Hints", "An item is taken by its number: item 1 of x.");
    if (here == "." && place.isIndex()) {
        if (std::string foreign = foreignWordAdvice(place.behind()); !foreign.empty()) return foreign;
        return sentence("Hints", "What belongs to a value is taken with “of”: length of x.");
    }
    if (here == "[") return sentence("Hints", "A list stands in braces: {1, 2}.");
    if (here == "%") return sentence("Hints", "The rest of a division is written: 7 mod 2.");
    if (has("'")) return sentence("Hints", "Text stands between straight double quotes (\").");
    return "";
}

}  // namespace

std::string hintOfLine(const ScriptError& error, const Tree& tree, std::string_view source,
                       bool knowsKeyboard) {
    const ErrorLine line(source, error.location);
    const std::string message = error.message.english();
    const bool isInsideTell = knowsKeyboard || line.isTold();
    if (std::string hint = modifierHint(line); isInsideTell && !hint.empty()) return hint;
    if (std::string hint = signHint(error, line); !hint.empty()) return hint;
    if (std::string hint = keyHint(error, line); isInsideTell && !hint.empty()) return hint;
    if (std::string hint = shownTextHint(line, tree); !hint.empty()) return hint;
    if (line.here() == "with" && line.behind() == "format") return sentence("Hints", datingAdvice);
    if (line.standsAgainstText() && message.starts_with(unexpected))
        return sentence("Hints", R"(A quote inside a text is written \": "Hello \"world\"".)");
    const auto isOther = [&](std::string_view word) { return isForeign(word) || sets(tree, word); };
    if (std::string word = wordMeant(error, line, isOther); !word.empty()) return didYouMean(word);
    const auto isHere = [&](const Slip& slip) {
        if (slip.where != Where::anywhere && (slip.where == Where::inside) != isInsideTell) return false;
        return message.find(slip.inMessage) != std::string::npos && fits(line.first(), slip.first) &&
               fits(line.before(), slip.before) && fits(line.here(), slip.here);
    };
    const auto* row = std::find_if(slips.begin(), slips.end(), isHere);
    if (row != slips.end()) return sentence("Hints", row->hint);
    if (std::string hint = foreignWordAdvice(line.first()); !hint.empty()) return hint;
    return isInsideTell && line.first() == "keystroke" ? quotesHint(line.wordsFrom(1, {"using"})) : "";
}

}  // namespace script

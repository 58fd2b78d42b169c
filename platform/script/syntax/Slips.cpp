// SPDX-License-Identifier: MIT
#include "platform/script/syntax/Slips.h"

#include <algorithm>
#include <array>
#include <vector>

#include "platform/script/source/Lexer.h"
#include "platform/script/source/Name.h"

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
    std::string_view hint;
    Where where = Where::anywhere;
};

constexpr std::string_view tellHint =
    "The keyboard commands stand inside “tell application \"System Events\"” … “end tell”.";
constexpr std::string_view curlyHint = "Put straight quotes (\") in place of the curly ones.";
constexpr std::string_view setHint = "A variable is set with “to”: set x to 5.";
constexpr std::string_view loopHint = "A loop is written: repeat with i from 1 to 5 … end repeat.";
constexpr std::string_view handlerHint = "A handler is written: on greet(x) … end greet.";
constexpr std::string_view bracesHint = "Several stand in braces: {control down, shift down}, {36, 48}.";
constexpr std::string_view pauseHint = "A pause is written in seconds: delay 2.";
constexpr std::string_view elseHint = "These are two words: else if … then.";
constexpr std::string_view joinHint = "Texts are joined with “&”: \"one\" & \"two\".";
constexpr std::string_view keyHint =
    "A key is pressed by its number: key code 36 is Return. “keyrill-script keys” prints all numbers.";
constexpr std::string_view mouseHint =
    "A macro has no mouse; press the keys that do the same, as Tab and Return.";
constexpr std::string_view bothHint = "Conditions are joined with “and” or “or”.";
constexpr std::string_view processHint =
    "Of a process its name is known, and whether it is in front: every process whose name contains \"fire\".";
constexpr std::string_view windowHint =
    "Windows, buttons and menus are not to be seen by a macro; press the keys that do the same.";
constexpr std::string_view askHint =
    R"(A question is asked with: text returned of (display dialog "Name?" default answer "").)";
constexpr std::string_view typeHint = "Text is typed with “keystroke”: keystroke \"hello\".";
constexpr std::string_view usingHint = "Modifiers stand behind “using”: keystroke \"s\" using control down.";
constexpr std::string_view timesHint =
    "What is done several times stands in lines of its own between “repeat 5 times” and “end repeat”.";
constexpr std::string_view lineHint = "Each statement has a line of its own.";
constexpr std::string_view startHint =
    "Press the keys that start it, or bring a window to the front: tell application \"Firefox\" to activate.";

constexpr std::string_view keyboardWords = "keystroke|key";
constexpr std::string_view unexpected = "Expected end of line";

/// The first row that fits counts.
constexpr auto slips = std::to_array<Slip>({
    {"unknown token “", "", "", "", curlyHint},
    {"unknown token ”", "", "", "", curlyHint},
    {"unknown token ‘", "", "", "", curlyHint},
    {"Raw codes", "", "", "", "Write the command by its name."},
    {"do shell script” is refused", "", "", "", startHint},
    {unexpected, keyboardWords, "", "", tellHint, Where::outside},
    {"", keyboardWords, "", "with|command|control|option|shift|cmd|ctrl|alt", usingHint, Where::inside},
    {unexpected, "command|control|option|shift|cmd|ctrl|alt|super|win", "", "",
     "A shortcut is written: keystroke \"c\" using control down."},
    {unexpected, "keystroke", "", "0", timesHint, Where::inside},
    {unexpected, "key", "", "0", bracesHint, Where::inside},
    {unexpected, "repeat", "", "keystroke|key|delay|beep|set", timesHint},
    {unexpected, keyboardWords, "", "keystroke|key|delay|beep|set", lineHint, Where::inside},
    {unexpected, keyboardWords, "", ",", bracesHint, Where::inside},
    {unexpected, keyboardWords, "\"", "\"", joinHint, Where::inside},
    {"Expected expression but found “end", "", "", "",
     "No block is open here; an “if” with its statement in one line has no “end if”."},
    {"Expected “)” but found “,”", "", "", "", bracesHint},
    {"Expected “)” but found end of line", "", "", "", "A parenthesis is not closed in this line."},
    {"found “whose”", "", "", "",
     "Only processes are chosen by “whose”; go through a list with: repeat with x in theList … end repeat."},
    {unexpected, "", "window|button|menu|bar|field|sheet", "0|\"", windowHint},
    {"found “else”", "if", "", "", "An “if” in one line has no “else”; write it in lines, with “end if”."},
    {unexpected, "elseif|elif", "", "", elseHint},
    {unexpected, "delay|beep", "0", ",", "Decimals stand behind a point: 0.5."},
    {unexpected, "delay", "0", "ms|s|sec|secs|second|seconds|millisecond|milliseconds|msec",
     "“delay” counts seconds, without a unit: delay 0.5."},
    {unexpected, "sleep|wait|pause", "", "", pauseHint},
    {unexpected, "type|write|send|print|echo|keypress|sendkeys", "", "\"", typeHint},
    {unexpected, "press|hit|push|tap|keypress|keycode", "", "", keyHint},
    {"Expected “code”, “down” or “up”", "", "key", "",
     "Text is typed with “keystroke”, a key is pressed by its number: key code 36."},
    {unexpected, "hold|release", "", "",
     "A key is held with “key down” and let go with “key up”: key down shift."},
    {unexpected, "open|launch|start", "", "\"", startHint},
    {unexpected, "", "ask|input|prompt", "\"", askHint},
    {unexpected, "click|doubleclick|rightclick|mouse|drag", "", "", mouseHint},
    {unexpected, "let|var|const|dim|local", "", "", setHint},
    {unexpected, "function|def|sub|func|proc|handler", "", "", handlerHint},
    {unexpected, "loop|do", "", "", "A loop is written: repeat 5 times … end repeat."},
    {unexpected, "tell", "", "",
     "The name stands between straight quotes: tell application \"System Events\"."},
    {"", "for|foreach", "", "for|foreach", loopHint},
    {unexpected, "foreach", "", "", loopHint},
    {"", "while", "", "while", "A loop is written: repeat while x < 5 … end repeat."},
    {"Expected “from” or “in”", "repeat", "", "=", loopHint},
    {"Expected “to” but found", "set", "", "=|:|\"|0", setHint},
    {unexpected, "", "", "=", setHint},
    {"Expected “to” but found", "repeat", "", "", loopHint},
    {"Expected expression", "", "+|-|*|/", "=", "A variable is set with “to”: set x to x + 1."},
    {"Expected expression", "", "+", "+", "A variable is set with “to”: set x to x + 1."},
    {"Expected expression", "", "", "/", "A comment begins with -- or #."},
    {"Expected expression", "", "/", "*", "A comment over lines is written (* … *)."},
    {"", "", "&", "&", bothHint},
    {"", "", "==", "", "“Equal” is written with one =."},
    {"Expected “\"” but found end of script", "", "", "", "A text is not closed by a straight quote."},
    {"Expected “\"” but found unknown token", "", "", "",
     R"(A backslash in a text is written twice: "C:\\Users".)"},
    {"Expected class name", "", "", "",
     "Behind “as” stands a class: text, integer, real, number, boolean, list, record, date."},
    {"Expected “name”, “frontmost”", "", "", "", processHint},
    {unexpected, "", "unix|bundle", "", processHint},
    {"Expected “then”", "", "", "{", "A block has no braces: if x = 1 then … end if."},
    {unexpected, "", "", "{", "A block has no braces; it ends with “end” and its first word: end repeat."},
    {unexpected, "", "", ":", "A line needs no colon at its end."},
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

/// The line in which an error stands, as its tokens.
class ErrorLine {
  public:
    ErrorLine(std::string_view source, const Location& place) {
        const std::string_view text = lineOf(source, place.line);
        const std::size_t column = text.size() - std::min(offsetOf(text, {1, place.column}), text.size());
        Lexer lexer(text);
        for (Token token = lexer.next(); !token.is(TokenKind::endOfScript); token = lexer.next()) {
            const auto left = static_cast<std::size_t>(text.data() + text.size() - token.text.data());
            if (left > column) m_at = m_tokens.size() + 1;
            m_tokens.push_back(token);
            const bool isTold =
                m_begin == 0 && left > column && equalIgnoringCase(token.text, "to") && wordAt(0) == "tell";
            if (isTold) m_begin = m_tokens.size();
            if (m_tokens.size() == most) break;
        }
        if (!text.empty()) m_text = text;
    }

    std::string_view text() const { return m_text; }
    /// Of `tell ... to` in one line, that of the statement behind it.
    std::string first() const { return wordAt(m_begin); }
    std::string here() const { return wordAt(m_at); }
    std::string before() const { return m_at == 0 ? "" : wordAt(m_at - 1); }
    /// All behind the first word, up to this one, without what is around.
    std::string_view behindFirst(std::string_view end) const;
    /// Whether the line itself tells System Events to do what is wrong.
    bool isTold() const { return m_begin > 0 && wordAt(m_begin - 2) == "\"system events\""; }
    /// Whether the token stands against a name.
    bool isIndex() const;

  private:
    /// Longer lines are nobody's first.
    static constexpr std::size_t most = 200;

    std::string wordAt(std::size_t number) const {
        return number < m_tokens.size() ? asciiLowered(m_tokens[number].text) : "";
    }

    std::string_view m_text;
    std::vector<Token> m_tokens;
    std::size_t m_at = 0;
    std::size_t m_begin = 0;  ///< of the statement
};

bool ErrorLine::isIndex() const {
    if (m_at == 0 || m_at >= m_tokens.size()) return false;
    const Token& name = m_tokens[m_at - 1];
    return name.is(TokenKind::identifier) &&
           name.text.data() + name.text.size() == m_tokens[m_at].text.data();
}

std::string_view ErrorLine::behindFirst(std::string_view end) const {
    const std::size_t number = m_begin + 1;
    if (number >= m_tokens.size()) return "";
    std::size_t last = number;
    while (last + 1 < m_tokens.size() && wordAt(last + 1) != end) ++last;
    const char* begin = m_tokens[number].text.data();
    const auto length = m_tokens[last].text.data() + m_tokens[last].text.size() - begin;
    return {begin, static_cast<std::size_t>(length)};
}

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
    return "The modifiers are called command (Super), control (Ctrl), option (Alt) and shift: using " +
           std::string(row->name) + " down.";
}

/// `keystroke hello world`
std::string quotesHint(const ErrorLine& line) {
    const std::string words(line.behindFirst("using"));
    const bool areWords = !words.empty() && words.find_first_of("\"&({") == std::string::npos;
    return areWords ? "Text stands between straight quotes: \"" + words + "\"." : "";
}

/// Signs of other languages.
std::string signHint(const ScriptError& error, const ErrorLine& place) {
    const std::string_view line = place.text();
    const std::string here = place.here();
    const auto says = [&](std::string_view words) { return error.message.find(words) != std::string::npos; };
    const auto has = [&](std::string_view sign) { return line.find(sign) != std::string_view::npos; };
    if (!says("unknown token") && !says("but found “=”") && !says("but found “>”")) return "";
    if (has("!=") || has("<>")) return "“Not equal” is written ≠ or /=.";
    if (has("==")) return "“Equal” is written with one =.";
    if (here == "|") return std::string(bothHint);
    if (here == ";") return std::string(lineHint);
    if (here == "[" && place.isIndex()) return "An item is taken by its number: item 1 of x.";
    if (here == "." && place.isIndex()) return "What belongs to a value is taken with “of”: length of x.";
    if (here == "[") return "A list stands in braces: {1, 2}.";
    if (here == "%") return "The rest of a division is written: 7 mod 2.";
    if (has("'")) return "Text stands between straight double quotes (\").";
    return "";
}

}  // namespace

std::string hintOfLine(const ScriptError& error, std::string_view source, bool knowsKeyboard) {
    const ErrorLine line(source, error.location);
    const bool isInsideTell = knowsKeyboard || line.isTold();
    if (std::string hint = modifierHint(line); isInsideTell && !hint.empty()) return hint;
    if (std::string hint = signHint(error, line); !hint.empty()) return hint;
    const auto isHere = [&](const Slip& slip) {
        if (slip.where != Where::anywhere && (slip.where == Where::inside) != isInsideTell) return false;
        return error.message.find(slip.inMessage) != std::string::npos && fits(line.first(), slip.first) &&
               fits(line.before(), slip.before) && fits(line.here(), slip.here);
    };
    const auto* row = std::find_if(slips.begin(), slips.end(), isHere);
    if (row != slips.end()) return std::string(row->hint);
    const bool mayBeText =
        line.first() == "keystroke" || error.message.find("found identifier") != std::string::npos;
    return isInsideTell && mayBeText && line.first() == "keystroke" ? quotesHint(line) : "";
}

}  // namespace script

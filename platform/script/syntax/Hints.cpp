// SPDX-License-Identifier: MIT
#include "platform/script/syntax/Hints.h"

#include <algorithm>
#include <array>
#include <vector>

namespace script {
namespace {

std::string_view withoutBlanksBefore(std::string_view line) {
    return line.substr(std::min(line.find_first_not_of(" \t"), line.size()));
}

/// The line in which the innermost block begins that is open where the error is; 0 if all are closed.
std::uint32_t openBlockLine(const ScriptError& error, const Tree& tree, std::string_view source) {
    std::vector<std::uint32_t> openLines;
    Locator locator(source);
    for (const BlockMark& mark : tree.blocks) {
        const Location place = locator.at(mark.offset);
        const bool isBehind = place.line > error.location.line ||
                              (place.line == error.location.line && place.column >= error.location.column);
        if (isBehind) break;
        if (mark.change > 0) {
            openLines.push_back(place.line);
        } else if (!openLines.empty()) {
            openLines.pop_back();
        }
    }
    return openLines.empty() ? 0 : openLines.back();
}

struct Slip {
    std::string_view inMessage;
    std::string_view atLineStart;  ///< of the line, in lower case; empty for any
    std::string_view hint;
};

constexpr std::string_view tellHint =
    "The keyboard commands stand inside “tell application \"System Events\"” … “end tell”.";

constexpr auto slips = std::to_array<Slip>({
    {"unknown token “", "", "Put straight quotes (\") in place of the curly ones."},
    {"unknown token ”", "", "Put straight quotes (\") in place of the curly ones."},
    {"unknown token ‘", "", "Put straight quotes (\") in place of the curly ones."},
    {"Expected end of line", "keystroke", tellHint},
    {"Expected end of line", "key code", tellHint},
    {"Expected end of line", "key down", tellHint},
    {"Expected end of line", "key up", tellHint},
    {"found “else”", "if", "An “if” in one line has no “else”; write it in lines, with “end if”."},
    {"Expected “\"” but found end of script", "", "A text is not closed by a straight quote."},
    {"Expected class name", "",
     "Behind “as” stands a class: text, integer, real, number, boolean, list, record, date."},
    {"Expected “to” but found “=”", "set", "A variable is set with “to”: set x to 5."},
    {"Raw codes", "", "Write the command by its name."},
});

std::string tokenHint(std::string_view line) {
    if (line.find("!=") != std::string_view::npos || line.find("<>") != std::string_view::npos) {
        return "“Not equal” is written ≠ or /=.";
    }
    if (line.find("==") != std::string_view::npos) return "“Equal” is written with one =.";
    if (line.find(';') != std::string_view::npos) return "Each statement has a line of its own.";
    if (line.find('\'') != std::string_view::npos) return "Text stands between straight double quotes (\").";
    return "";
}

}  // namespace

std::string syntaxHint(const ScriptError& error, const Tree& tree, std::string_view source) {
    if (error.message.starts_with("Expected “end” but")) {
        const std::uint32_t line = openBlockLine(error, tree, source);
        if (line > 0)
            return "The block that begins in line " + std::to_string(line) + " has no “end” of its own.";
    }
    const std::string_view line = withoutBlanksBefore(lineOf(source, error.location.line));
    const std::string lowered = asciiLowered(line.substr(0, 20));
    for (const Slip& slip : slips) {
        if (error.message.find(slip.inMessage) == std::string::npos) continue;
        if (lowered.starts_with(slip.atLineStart)) return std::string(slip.hint);
    }
    const bool isSign = error.message.find("unknown token") != std::string::npos ||
                        error.message.find("but found “=”") != std::string::npos ||
                        error.message.find("but found “>”") != std::string::npos;
    return isSign ? tokenHint(line) : "";
}

}  // namespace script

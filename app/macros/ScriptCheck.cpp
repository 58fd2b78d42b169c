// SPDX-License-Identifier: MIT
#include "app/macros/ScriptCheck.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <set>

#include "platform/ErrorText.h"
#include "platform/script/code/Compiler.h"
#include "platform/script/commands/CommandForms.h"
#include "platform/script/source/Word.h"

namespace {

ScriptProblem problemAt(const script::Location& place, bool isError, std::string text) {
    return {static_cast<int>(place.line), static_cast<int>(place.column), isError, std::move(text)};
}

std::string textOf(const script::ScriptError& error) {
    return inOneParagraph(error.message.text(), error.hint.text());
}

/// What of a command's form is typed as it stands: "key code" of "key code CODE [using MODIFIERS]".
std::string wordsOf(std::string_view form) {
    const auto isUpper = [](char c) { return std::isupper(static_cast<unsigned char>(c)) != 0; };
    std::size_t end = 0;
    while (end < form.size() && form[end] != '[') {
        const bool isName =
            isUpper(form[end]) && (end + 1 == form.size() || isUpper(form[end + 1]) || form[end + 1] == ' ');
        if (isName && !form.substr(end).starts_with("ASCII")) break;
        end = std::min(form.find(' ', end), form.size() - 1) + 1;
    }
    std::string words(form.substr(0, end));
    while (words.ends_with(' ')) words.pop_back();
    return words;
}

}  // namespace

std::vector<ScriptProblem> problemsOf(const std::string& source) {
    const auto program = script::compile(source);
    if (!program) return {problemAt(program.error().location, true, textOf(program.error()))};
    std::vector<ScriptProblem> problems;
    for (const script::ScriptWarning& warning : program.value().warnings())
        problems.push_back(problemAt(warning.location, false, warning.message));
    std::stable_sort(
        problems.begin(), problems.end(),
        [](const ScriptProblem& one, const ScriptProblem& other) { return one.line < other.line; });
    return problems;
}

std::vector<std::string> scriptPhrases() {
    std::set<std::string> phrases = {"command down", "control down", "end if",
                                     "end repeat",   "end tell",     "end try",
                                     "option down",  "shift down",   "tell application \"System Events\""};
    for (const std::string_view form : script::commandForms()) phrases.insert(wordsOf(form));
    for (int word = 1; word <= static_cast<int>(script::Word::without); ++word) {
        const auto known = static_cast<script::Word>(word);
        if (script::kindOf(known) == script::WordKind::reserved) phrases.emplace(script::spellingOf(known));
    }
    phrases.erase("");
    return {phrases.begin(), phrases.end()};
}

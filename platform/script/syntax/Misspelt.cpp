// SPDX-License-Identifier: MIT
#include "platform/script/syntax/Misspelt.h"

#include <array>
#include <vector>

#include "platform/script/commands/Command.h"
#include "platform/script/source/Misspelling.h"
#include "platform/script/source/Word.h"
#include "platform/script/syntax/ErrorLine.h"
#include "platform/script/values/ElementNames.h"
#include "platform/script/values/PredefinedNames.h"

namespace script {
namespace {

/// Words that stand where others of the language do not.
struct PlacedWord {
    WordPlace place;
    std::string_view word;
};

constexpr auto placedWords = std::to_array<PlacedWord>({
    {WordPlace::statement, "set"},      {WordPlace::statement, "copy"},
    {WordPlace::statement, "put"},      {WordPlace::statement, "return"},
    {WordPlace::statement, "error"},    {WordPlace::statement, "exit"},
    {WordPlace::statement, "global"},   {WordPlace::statement, "local"},
    {WordPlace::statement, "tell"},     {WordPlace::statement, "if"},
    {WordPlace::statement, "else"},     {WordPlace::statement, "repeat"},
    {WordPlace::statement, "try"},      {WordPlace::statement, "considering"},
    {WordPlace::statement, "ignoring"}, {WordPlace::statement, "end"},
    {WordPlace::statement, "property"}, {WordPlace::value, "return"},
    {WordPlace::value, "space"},        {WordPlace::value, "linefeed"},
    {WordPlace::value, "quote"},        {WordPlace::value, "true"},
    {WordPlace::value, "false"},        {WordPlace::value, "result"},
    {WordPlace::value, "control"},      {WordPlace::value, "option"},
    {WordPlace::value, "command"},      {WordPlace::value, "shift"},
    {WordPlace::text, "return"},        {WordPlace::text, "space"},
    {WordPlace::text, "linefeed"},      {WordPlace::modifier, "using"},
    {WordPlace::modifier, "down"},      {WordPlace::modifier, "control"},
    {WordPlace::modifier, "option"},    {WordPlace::modifier, "command"},
    {WordPlace::modifier, "shift"},     {WordPlace::block, "tell"},
    {WordPlace::block, "if"},           {WordPlace::block, "repeat"},
    {WordPlace::block, "try"},          {WordPlace::block, "considering"},
    {WordPlace::block, "ignoring"},     {WordPlace::block, "timeout"},
});

void compareWords(Misspelling& misspelling, const Phrase& phrase, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) misspelling.compare(phrase.word(i));
}

void compareCommands(Misspelling& misspelling) {
    for (const Command* command : commands()) compareWords(misspelling, command->name, 1);
}

/// All words that the language knows.
void compareAll(Misspelling& misspelling) {
    constexpr std::size_t shortest = 4;
    for (auto number = 1; number <= static_cast<int>(Word::without); ++number) {
        const std::string_view word = spellingOf(static_cast<Word>(number));
        if (word.size() >= shortest) misspelling.compare(word);
    }
    for (const Command* command : commands()) {
        compareWords(misspelling, command->name, command->name.wordCount());
        for (const Parameter& parameter : command->parameters)
            compareWords(misspelling, parameter.label, parameter.label.wordCount());
    }
}

/// Of the words that an error asks for: Expected “a”, “b” or “c” but found ...
std::string expectedLike(std::string_view misspelt, std::string_view message) {
    constexpr std::string_view open = "“";
    constexpr std::string_view close = "”";
    Misspelling misspelling(misspelt, 2);
    std::string_view left = message.substr(0, message.find(" but found"));
    for (std::size_t begin = left.find(open); begin != std::string_view::npos; begin = left.find(open)) {
        left.remove_prefix(begin + open.size());
        misspelling.compare(left.substr(0, left.find(close)));
    }
    return misspelling.meant();
}

bool isKeyboardCommand(std::string_view word) { return word == "keystroke" || word == "key"; }

}  // namespace

bool isUnknown(std::string_view word) {
    if (word.empty() || word.front() < 'a' || word.front() > 'z') return false;
    const std::uint32_t hash = SpellingHash(word).value();
    const Token token{TokenKind::identifier, wordOf(word, hash), hash, word};
    return token.is(Word::none) && findElementName(token) == nullptr && !findPredefinedName(token);
}

bool isOnErrorMeant(const ErrorLine& line) {
    if (line.first() != "on" || !isUnknown(line.second())) return false;
    Misspelling misspelling(line.second(), 4);
    misspelling.compare("error");
    return !misspelling.meant().empty();
}

std::string wordLike(std::string_view misspelt, WordPlace place) {
    const bool isShortAllowed = place == WordPlace::statement || place == WordPlace::block;
    Misspelling misspelling(misspelt, isShortAllowed ? 3 : 4);
    for (const PlacedWord& row : placedWords) {
        if (row.place == place) misspelling.compare(row.word);
    }
    if (place == WordPlace::statement) compareCommands(misspelling);
    if (place == WordPlace::within) compareAll(misspelling);
    return misspelling.meant();
}

std::string wordMeant(const ScriptError& error, const ErrorLine& line,
                      const std::function<bool(std::string_view)>& isOther) {
    const auto meantAt = [&](const std::string& word, WordPlace place) {
        return isUnknown(word) && !isOther(word) ? wordLike(word, place) : "";
    };
    if (isUnknown(line.here())) {
        if (std::string meant = expectedLike(line.here(), error.message.english()); !meant.empty())
            return meant;
    }
    const bool isOver = error.message.english().starts_with("Expected end of line but");
    if (!isOver && line.here() != "down") return "";
    if (isOther(line.first()) && wordOf(line.first()) == Word::none) return "";
    if (isOver && line.isBehindFirst()) {
        if (std::string meant = meantAt(line.first(), WordPlace::statement); !meant.empty()) return meant;
    }
    const WordPlace place = isKeyboardCommand(line.first()) ? WordPlace::modifier : WordPlace::within;
    std::string meant = meantAt(line.here(), place);
    if (!meant.empty() || line.isBehindFirst()) return meant;
    return meantAt(line.before(), place);
}

}  // namespace script

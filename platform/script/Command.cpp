// SPDX-License-Identifier: MIT
#include "platform/script/Command.h"

#include <string>
#include <unordered_map>

#include "platform/script/Name.h"
#include "platform/script/commands/All.h"

namespace script {
namespace {

using Indices = std::vector<std::uint32_t>;

/// The indices of the commands that begin with a word.
const Indices* beginningWith(std::string_view word) {
    static const std::unordered_map<std::string, Indices> byFirstWord = [] {
        std::unordered_map<std::string, Indices> map;
        for (std::uint32_t i = 0; i < commands().size(); ++i) {
            const std::string_view name = commands()[i]->name;
            map[std::string(name.substr(0, name.find(' ')))].push_back(i);
        }
        return map;
    }();
    constexpr std::size_t longest = 10;
    if (word.size() > longest) return nullptr;
    const auto found = byFirstWord.find(asciiLowered(word));
    return found == byFirstWord.end() ? nullptr : &found->second;
}

}  // namespace

const std::vector<const Command*>& commands() {
    static const std::vector<const Command*> all{
        &keyCodeCommand(),        &keystrokeCommand(),    &keyDownCommand(),
        &keyUpCommand(),          &delayCommand(),        &beepCommand(),
        &activateCommand(),       &clipboardCommand(),    &setClipboardCommand(),
        &displayDialogCommand(),  &displayAlertCommand(), &displayNotificationCommand(),
        &countCommand(),          &numberOfCommand(),     &offsetCommand(),
        &roundCommand(),          &randomNumberCommand(), &currentDateCommand(),
        &asciiCharacterCommand(), &asciiNumberCommand(),  &logCommand()};
    return all;
}

std::optional<std::uint32_t> commandHere(const TokenStream& tokens) {
    if (!tokens.isAt(TokenKind::identifier)) return std::nullopt;
    const Indices* candidates = beginningWith(tokens.current().text);
    if (candidates == nullptr) return std::nullopt;
    std::optional<std::uint32_t> longest;
    for (const std::uint32_t index : *candidates) {
        const Command& command = *commands()[index];
        if (command.isTerm && !tokens.knowsTerms()) continue;
        if (longest && command.name.size() <= commands()[*longest]->name.size()) continue;
        if (tokens.isAtTerm(command.name)) longest = index;
    }
    return longest;
}

}  // namespace script

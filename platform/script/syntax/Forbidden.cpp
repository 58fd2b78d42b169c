// SPDX-License-Identifier: MIT
#include "platform/script/syntax/Forbidden.h"

#include <array>
#include <string>

#include "platform/script/source/Wording.h"

namespace script {
namespace {

constexpr auto forbiddenCommands = std::to_array<Phrase>(
    {"do shell script", "run script", "load script", "store script", "open location", "say"});

bool refuse(TokenStream& tokens, std::string_view words, std::string_view reason) {
    tokens.fail(errornumber::syntax, quoted(words) + " is refused: " + std::string(reason));
    return true;
}

constexpr std::string_view onlyKeys = "a macro can press keys and nothing else.";

}  // namespace

bool refuseForbiddenCommand(TokenStream& tokens) {
    for (const Phrase& command : forbiddenCommands) {
        if (!tokens.isAtPhrase(command)) continue;
        const bool isName = command.wordCount() == 1 && !tokens.ahead().is(TokenKind::text) &&
                            !tokens.ahead().is(TokenKind::identifier);
        if (!isName) return refuse(tokens, command.spelling(), onlyKeys);
    }
    return false;
}

bool refuseForbiddenStatement(TokenStream& tokens) {
    if (tokens.isAt(Word::script) && tokens.ahead().is(TokenKind::identifier)) {
        return refuse(tokens, "script", "a macro is one script.");
    }
    return false;
}

}  // namespace script

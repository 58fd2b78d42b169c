// SPDX-License-Identifier: MIT
#include "platform/script/syntax/Forbidden.h"

#include <array>
#include <string>

#include "platform/Sentence.h"

namespace script {
namespace {

constexpr auto forbiddenCommands = std::to_array<Phrase>(
    {"do shell script", "run script", "load script", "store script", "open location", "say"});

bool refuse(TokenStream& tokens, Sentence why) {
    tokens.fail(errornumber::syntax, std::move(why));
    return true;
}

}  // namespace

bool refuseForbiddenCommand(TokenStream& tokens) {
    for (const Phrase& command : forbiddenCommands) {
        if (!tokens.isAtPhrase(command)) continue;
        const bool isName = command.wordCount() == 1 && !tokens.ahead().is(TokenKind::text) &&
                            !tokens.ahead().is(TokenKind::identifier);
        if (isName) continue;
        return refuse(tokens,
                      sentence("ScriptErrors", "“%1” is refused: a macro can press keys and nothing else.")
                          .arg(command.spelling()));
    }
    return false;
}

bool refuseForbiddenStatement(TokenStream& tokens) {
    if (tokens.isAt(Word::script) && tokens.ahead().is(TokenKind::identifier)) {
        return refuse(tokens,
                      sentence("ScriptErrors", "“%1” is refused: a macro is one script.").arg("script"));
    }
    return false;
}

}  // namespace script

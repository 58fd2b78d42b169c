// SPDX-License-Identifier: MIT
#include "platform/script/commands/All.h"

#include <string>
#include <utility>
#include <variant>

#include "platform/script/commands/Advice.h"
#include "platform/script/commands/Playing.h"
#include "platform/script/values/Coercion.h"

namespace script {
namespace {

Fallible<Value> perform(CommandStage& stage, const Arguments& arguments) {
    Fallible<std::string> text = textOf(*arguments.direct(), stage.rules().joint());
    if (!text) {
        Failure failure = std::move(text).error();
        RecordBody* record = arguments.direct()->record();
        const bool isAnswer = record != nullptr && record->find(names::textReturned) != nullptr;
        if (isAnswer) failure.hint = recordAdvice();
        return failure;
    }
    auto mask = modifierMask(stage, arguments.parameter(0));
    if (!mask) return std::move(mask).error();
    const std::string& typed = text.value();
    if (typed.empty()) return Value();
    return outcomeOf(
        stage.play([&](InjectionSession& session) { return session.text(typed, mask.value()); }));
}

}  // namespace

const Command& keystrokeCommand() {
    static const Command command{
        .name = "keystroke",
        .isOfDictionary = true,
        .direct = Command::Direct::required,
        .plays = Command::Plays::texts,
        .parameters = {{"using"}},
        .perform = perform,
        .manual = R"(keystroke TEXT [using MODIFIERS]

Types a text, character by character, in whatever application is in front. `return` and `linefeed` press Return, `tab`
presses Tab. What is no text is typed as one: a number, a list. MODIFIERS are held over every character. Known inside
`tell application "System Events"` only.)",
        .examples = R"(tell application "System Events" to keystroke "Hello" & return -> ["text","Hello\r",[]]
tell application "System Events" to keystroke "s" using command down -> ["text","s",["command"]])"};
    return command;
}

}  // namespace script

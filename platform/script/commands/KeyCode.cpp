// SPDX-License-Identifier: MIT
#include "platform/script/commands/All.h"

#include <utility>
#include <variant>

#include "platform/script/commands/Playing.h"
#include "platform/script/values/Coercion.h"

namespace script {
namespace {

Fallible<Value> perform(CommandStage& stage, const Arguments& arguments) {
    auto mask = modifierMask(stage, arguments.parameter(0));
    if (!mask) return std::move(mask).error();
    // All codes are read before the first is pressed.
    std::vector<std::uint32_t> codes;
    for (const Value& item : itemsOf(*arguments.direct())) {
        Fallible<Value> value = resolved(item);
        if (!value) return value;
        auto code = keyCodeOf(value.value());
        if (!code) return std::move(code).error();
        if (acceptCode(stage, code.value())) codes.push_back(code.value());
    }
    for (const std::uint32_t code : codes) {
        auto played =
            stage.play([&](InjectionSession& session) { return session.stroke(code, mask.value()); });
        if (!played) return std::move(played).error();
    }
    return Value();
}

}  // namespace

const Command& keyCodeCommand() {
    static const Command command{
        .name = "key code",
        .isOfDictionary = true,
        .direct = Command::Direct::required,
        .plays = Command::Plays::codes,
        .parameters = {{"using"}},
        .perform = perform,
        .manual = R"(key code CODE [using MODIFIERS]

Presses the key with a number, or the keys of a list, one after another. The number names a place on the keyboard, whatever
letter is printed there. MODIFIERS is `command down`, `control down`, `option down` or `shift down`, or a list of these;
they are held while the key is pressed and come up afterwards. Known inside `tell application "System Events"` only.)",
        .examples = R"(tell application "System Events" to key code 36 -> ["key",36,[]]
tell application "System Events" to key code {0, 11} using {shift down, command down} -> ["key",0,["command","shift"]] ["key",11,["command","shift"]])"};
    return command;
}

}  // namespace script

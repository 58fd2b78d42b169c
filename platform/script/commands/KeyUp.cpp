// SPDX-License-Identifier: MIT
#include "platform/script/commands/All.h"

#include "platform/script/commands/Playing.h"

namespace script {
namespace {

Fallible<Value> perform(CommandStage& stage, const Arguments& arguments) {
    return hold(stage, *arguments.direct(), false);
}

}  // namespace

const Command& keyUpCommand() {
    static const Command command{
        .name = "key up",
        .isOfDictionary = true,
        .direct = Command::Direct::required,
        .plays = Command::Plays::keys,
        .perform = perform,
        .manual = R"(key up KEY

Releases a key that `key down` holds. KEY is a modifier (`shift`), a key code, a text whose
keys are meant, or a list of these. A key that is not held stays as it is. Known inside `tell application "System Events"` only.)",
        .examples =
            R"(tell application "System Events" to key up {control, shift down} -> ["keyup","control",[]] ["keyup","shift",[]]
tell application "System Events" to key up 49 -> ["keyup",49,[]])"};
    return command;
}

}  // namespace script

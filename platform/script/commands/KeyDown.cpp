// SPDX-License-Identifier: MIT
#include "platform/script/commands/All.h"

#include "platform/script/commands/Playing.h"

namespace script {
namespace {

Fallible<Value> perform(CommandStage& stage, const Arguments& arguments) {
    return hold(stage, *arguments.direct(), true);
}

}  // namespace

const Command& keyDownCommand() {
    static const Command command{
        .name = "key down",
        .isOfDictionary = true,
        .direct = Command::Direct::required,
        .plays = Command::Plays::keys,
        .perform = perform,
        .manual = R"(key down KEY

Presses a key and holds it. KEY is a modifier (`shift`), a key code, a text whose
keys are meant, or a list of these. What a script forgets to release is released when it ends. Known inside `tell application "System Events"` only.)",
        .examples =
            R"(tell application "System Events" to key down {control, shift down} -> ["keydown","control",[]] ["keydown","shift",[]]
tell application "System Events" to key down 49 -> ["keydown",49,[]])"};
    return command;
}

}  // namespace script

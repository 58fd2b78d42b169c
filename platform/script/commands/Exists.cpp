// SPDX-License-Identifier: MIT
#include "platform/ScriptDesktop.h"
#include "platform/script/commands/All.h"
#include "platform/script/values/SourceForm.h"

namespace script {
namespace {

/// What can be written down and is no application is there.
Fallible<Value> perform(CommandStage& stage, const Arguments& arguments) {
    const TargetBody* target = arguments.direct()->target();
    const bool isAsked = target != nullptr && (target->kind == TargetBody::Kind::application ||
                                               target->kind == TargetBody::Kind::process);
    return Value{!isAsked || stage.desktop().hasApplication(target->name.str())};
}

}  // namespace

const Command& existsCommand() {
    static const Command command{.name = "exists",
                                 .direct = Command::Direct::required,
                                 .takesReference = true,
                                 .perform = perform,
                                 .manual = R"(exists APPLICATION

Whether a window of an application is open: `if exists process "Firefox" then`. `application "Firefox" is running` and
`process "Firefox" exists` ask the same. `name of first process whose frontmost is true` is the one in front.)",
                                 .examples = R"(exists application "Firefox" => true
application "Firefox" is running => true
tell application "System Events" to not (exists process "Firefox") => false
tell application "System Events" to name of first process whose frontmost is true => "Application")"};
    return command;
}

}  // namespace script

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
`process "Firefox" exists` ask the same.

`name of every process` lists what the applications are called that have a window, the one in front first; `processes` is
short for `every process`. Behind `whose` stands what is asked of each: its `name`, whether it is `frontmost`, `visible`
(all are) or `background only` (none is), compared as any value and joined by `and`, `or` and `not`. Windows and menus
are not to be seen. `trace` knows of the one in front alone.)",
                                 .examples = R"(exists application "Firefox" => true
application "Firefox" is running => true
tell application "System Events" to not (exists process "Firefox") => false
tell application "System Events" to name of first process whose frontmost is true => "Application"
tell application "System Events" to name of every process => {"Application"}
tell application "System Events" to name of every process whose name contains "fire" => {}
tell application "System Events" to exists (first process whose name starts with "app") => true)"};
    return command;
}

}  // namespace script

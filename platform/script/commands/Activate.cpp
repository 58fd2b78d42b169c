// SPDX-License-Identifier: MIT
#include "platform/script/commands/All.h"

#include "platform/ScriptDesktop.h"
#include "platform/script/commands/Playing.h"
#include "platform/script/values/SourceForm.h"

namespace script {
namespace {

Fallible<Value> perform(CommandStage& stage, const Arguments& arguments) {
    const Value& who = arguments.direct() == nullptr ? stage.target() : *arguments.direct();
    const TargetBody* target = who.target();
    if (target == nullptr) return cannotMake(who, "application");
    // The script and its keyboard have no windows.
    if (target->kind == TargetBody::Kind::script || target->kind == TargetBody::Kind::systemEvents)
        return Value();
    if (!stage.desktop().hasApplication(target->name.str())) return cannotGet(quotedForm(who));
    const Result<void> raised = stage.desktop().activate(target->name.str());
    if (!raised) return desktopFailure(raised.error());
    return Value();
}

}  // namespace

const Command& activateCommand() {
    static const Command command{.name = "activate",
                                 .direct = Command::Direct::optional,
                                 .perform = perform,
                                 .manual = R"(activate [APPLICATION]

Brings a window of an application to the front, where keys then go: `tell application "Firefox" to activate`, or
`activate application "Firefox"`. The application is named as its program or as its windows' class. It has to run already.)",
                                 .examples = R"(activate ->
tell application "Firefox" to activate ->
activate 5 =! -1700 Can’t make 5 into type application.)"};
    return command;
}

}  // namespace script

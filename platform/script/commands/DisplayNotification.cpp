// SPDX-License-Identifier: MIT
#include "platform/script/commands/All.h"

#include "platform/ScriptDialogs.h"
#include "platform/script/commands/DialogReader.h"
#include "platform/script/commands/Playing.h"

namespace script {
namespace {

/// The order of the table below.
enum Given : unsigned { title, subtitle };

Fallible<Value> perform(CommandStage& stage, const Arguments& arguments) {
    DialogReader reader(arguments);
    const ScriptNotification notification{reader.text(arguments.direct()),
                                          reader.text(arguments.parameter(title)),
                                          reader.text(arguments.parameter(subtitle))};
    if (reader.failure()) return *reader.failure();
    const Result<void> told = stage.dialogs().notify(notification);
    if (!told) return desktopFailure(told.error());
    return Value();
}

}  // namespace

const Command& displayNotificationCommand() {
    static const Command command{
        .name = "display notification",
        .direct = Command::Direct::optional,
        .parameters = {{"with title"}, {"subtitle"}, {"sound name"}},
        .perform = perform,
        .manual = R"(display notification [TEXT] [with title TEXT] [subtitle TEXT] [sound name TEXT]

Shows a notification and goes on. Sounds are the desktop’s own affair.)",
        .examples = R"(display notification "Done" with title "Macro" -> ["notification","Done"])"};
    return command;
}

}  // namespace script

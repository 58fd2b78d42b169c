// SPDX-License-Identifier: MIT
#include "platform/script/commands/All.h"

#include <string>
#include <utility>
#include <vector>

#include "platform/ScriptDialogs.h"
#include "platform/script/commands/DialogReader.h"
#include "platform/script/values/Coercion.h"

namespace script {
namespace {

/// The order of the table below.
enum Given : unsigned { message, kind, buttons, defaultButton, cancelButton, givingUp };

Value answered(const ScriptDialog& dialog, const ScriptAnswer& answer) {
    std::vector<Field> fields{
        {&names::buttonReturned, Value{answer.button ? dialog.buttons[*answer.button] : std::string()}}};
    if (dialog.givingUpAfter > 0) fields.push_back({&names::gaveUp, Value{!answer.button}});
    return Value{makeShared<RecordBody>(std::move(fields))};
}

Fallible<Value> perform(CommandStage& stage, const Arguments& arguments) {
    DialogReader reader(arguments);
    ScriptDialog& dialog = reader.dialog();
    dialog.kind = ScriptDialog::Kind::alert;
    dialog.text = reader.text(arguments.direct());
    dialog.message = reader.text(arguments.parameter(message));
    reader.readButtons(buttons, {"OK"});
    dialog.defaultButton = dialog.buttons.empty() ? 0 : dialog.buttons.size() - 1;
    reader.readButton(defaultButton, dialog.defaultButton);
    reader.readButton(cancelButton, dialog.cancelButton);
    dialog.givingUpAfter = reader.number(arguments.parameter(givingUp));
    const Value* given = arguments.parameter(kind);
    if (given != nullptr && *given->text() != "informational") dialog.icon = ScriptDialog::Icon::caution;
    return reader.ask(stage, answered);
}

}  // namespace

const Command& displayAlertCommand() {
    static const Command command{
        .name = "display alert",
        .direct = Command::Direct::required,
        .gives = Held::alert,
        .parameters = {{"message"},
                       {.label = "as",
                        .choices = {"informational", "warning", "critical"},
                        .takesValue = false},
                       {"buttons"},
                       {"default button"},
                       {"cancel button"},
                       {"giving up after"}},
        .perform = perform,
        .manual =
            R"(display alert TEXT [message TEXT] [as ( informational | warning | critical )] [buttons LIST] [default button BUTTON]
    [cancel button BUTTON] [giving up after SECONDS]

Tells something important and waits until a button is pressed. Without buttons there is OK alone; of buttons of its own the
last one is the default. The answer is a record as that of `display dialog`.)",
        .examples = R"(display alert "Look" -> ["alert","Look",["OK"]]
button returned of (display alert "Look" buttons {"A", "B"} default button "A") => "A")"};
    return command;
}

}  // namespace script
